// What is typed into the host: command texts as key codes, and the texts of start argument and caption.
#pragma once

#include "common/Text.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace obrin {

/// The key codes of a command, in order. A "\" is the key 220, CR LF is one Enter key (13) like a lone CR,
/// every other character is its own upper-case ANSI code, 0 to 255; one of two bytes is two codes, as windows
/// are told of it.
std::vector<std::uint8_t> HostKeyCodes(std::string command, UpperCaser upperCase, LeadByteTest isLeadByte);

/// The lines that load a program of the host and run it.
std::string LoadAndRunCommand(std::string_view program);

/// The lines that start a system: its code is asked for by the start program that they run.
std::string StartSystemCommand(std::string_view systemCode);

/// "run core\start -5": plain number.
std::string HostStartArguments(int wsid);

/// "Obrin-05": at least two digits.
std::string StationCaption(int wsid);

} // namespace obrin
