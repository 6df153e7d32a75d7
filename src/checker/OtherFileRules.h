// What is wrong or odd in the bytes of an installation's files, menu files excluded.
#pragma once

#include "checker/Finding.h"

#include <string>
#include <string_view>

namespace obrin {

/// Checks that each user in "UserWSID.sys" has one workstation number of its own. `ownName` is the user who
/// runs the checker.
Findings CheckUserRecords(const std::string& path, std::string_view bytes, std::string_view ownName,
                          LeadByteTest isLeadByte);

/// Checks that "Updated.txt" consists of whole records.
Findings CheckUpdateRegister(const std::string& path, std::string_view bytes);

/// Returns the bytes that name the processor of a program or library; empty for other files.
std::string ImageMachine(std::string_view image);

} // namespace obrin
