// What is wrong or odd in the files of an installation that are no menu files, told from names and bytes.
#pragma once

#include "checker/Finding.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace obrin {

/// Records of "UserWSID.sys" that do not lead each user to a workstation number of its own. `ownName` is the
/// user for whom the menu is predicted.
Findings CheckUserRecords(const std::string& path, std::string_view bytes, std::string_view ownName,
                          LeadByteTest isLeadByte);

/// Bytes of "Updated.txt" that are no whole records.
Findings CheckUpdateRegister(const std::string& path, std::string_view bytes);

enum class Machine : std::uint16_t { Bits32 = 0x014C, Bits64 = 0x8664 };

/// The processor that a program or library is made for, as its image names it; nothing for other bytes.
std::optional<Machine> ImageMachine(std::string_view image);

} // namespace obrin
