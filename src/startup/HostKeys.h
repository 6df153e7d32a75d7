// The commands that the menu types into the host, and the host's start arguments and caption.
#pragma once

#include "common/Text.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace obrin {

/// Returns the key codes of a command. "\" becomes key 220; CR LF and a lone CR become one Enter key (13).
/// Every other byte becomes its upper-case ANSI code, so a two-byte character becomes two keys.
std::vector<std::uint8_t> HostKeyCodes(std::string command, UpperCaser upperCase, LeadByteTest isLeadByte);

/// Returns the command that loads and runs a program of the host.
std::string LoadAndRunCommand(std::string_view program);

/// Returns the command that starts a system. It runs the host's start program, which then reads the code.
std::string StartSystemCommand(std::string_view systemCode);

/// Returns the host's start arguments: "run core\start -5" for workstation 5.
std::string HostStartArguments(int wsid);

/// Returns the caption of the host's window: "Obrin-05" for workstation 5.
std::string StationCaption(int wsid);

} // namespace obrin
