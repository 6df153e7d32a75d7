// What the fixed items of the menu bar do: host programs to run and documents to open.
#pragma once

#include "common/Text.h"

#include <optional>
#include <string>
#include <string_view>

namespace obrin {

/// The host program that an item of the menu bar runs.
std::optional<std::string_view> HostProgramOf(int item);

/// The document that an item opens, relative to the installation folder. Help of a system, the one of this
/// menu file, lies below its code.
std::optional<std::string> DocumentOf(int item, std::string_view menuFileName, LeadByteTest isLeadByte);

} // namespace obrin
