// What is wrong or odd in the other files of an installation, told from their names and bytes.
#pragma once

#include "checker/Finding.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace obrin {

/// Whether somebody may take a file of this name for a menu file that the menu does not.
bool IsMistakenMenuFileName(std::string_view name);

/// Records of "UserWSID.sys" that do not lead each user to a workstation number of its own.
std::vector<Finding> CheckUserRecords(std::string_view file, LeadByteTest isLeadByte);

/// A record of "Updated.txt" that is cut off.
std::vector<Finding> CheckUpdateRegister(std::string_view file);

constexpr std::uint16_t machine32 = 0x014C;
constexpr std::uint16_t machine64 = 0x8664;

/// The processor that a program or library is made for, as its image names it; nothing for other bytes.
std::optional<std::uint16_t> ImageMachine(std::string_view image);

/// Whether the program can use the bytes of "Corvel.dll"; `program` is its own image, empty when it is not at
/// hand.
std::vector<Finding> CheckSupportLibrary(std::string_view library, std::string_view program);

} // namespace obrin
