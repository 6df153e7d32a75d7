// What is wrong or odd in the records of users and of updated workstations.
#pragma once

#include "checker/Finding.h"

#include <string>
#include <string_view>

namespace obrin {

/// Checks that each user in "UserWSID.sys" has one workstation number of its own. `ownName` is the user who
/// runs the checker.
Findings CheckUserRecords(const std::string& path, std::string_view bytes, std::string_view ownName);

/// Checks that "Updated.txt" consists of whole records of digits.
Findings CheckUpdateRegister(const std::string& path, std::string_view bytes);

} // namespace obrin
