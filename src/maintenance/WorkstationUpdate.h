// The one-time update of a workstation's executables: whether it is due, and its entry in the register.
#pragma once

#include "platform/WindowsApi.h"

namespace obrin {

/// Once per workstation: shows the update window for a workstation that "Updated.txt" does not name, then
/// enters it there. Not entered when `owner`, the menu window, is gone by then. Throws RunTimeError for the
/// register's errors.
void CheckWorkstationUpdate(HWND owner, int wsid);

} // namespace obrin
