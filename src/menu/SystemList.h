// The menu "System List": one item for each system.
#pragma once

#include "menu/MenuFiles.h"
#include "platform/WindowsApi.h"

#include <vector>

namespace obrin {

/// Makes the items mnuSystems(0), (1), ... of the first menu of a menu bar, which the template leaves.
/// Without any system the menu itself leaves the bar.
void FillSystemList(HMENU bar, const std::vector<MenuFile>& systems);

} // namespace obrin
