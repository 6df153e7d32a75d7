// The fixed items of the menu bar, and the link: which host programs they run and which documents they open.
#pragma once

#include "common/Text.h"

#include <optional>
#include <string>
#include <string_view>

namespace obrin {

/// Returns the path of the host program that an item runs, or nothing for other items.
std::optional<std::string_view> HostProgramOf(int item);

/// Returns the path of the document that an item opens, relative to the installation folder, or nothing for
/// other items. `menuFileName` chooses the help folder of a system.
std::optional<std::string> DocumentOf(int item, std::string_view menuFileName, LeadByteTest isLeadByte);

} // namespace obrin
