// The contents of menu files, read from disk.
#pragma once

#include "checker/InstallationCheck.h"
#include "checker/MenuCheck.h"

#include <string>
#include <vector>

namespace obrin {

/// One result for each path; a file that cannot be read has an error as its only finding.
std::vector<MenuCheck> CheckMenuFiles(const std::vector<std::string>& paths, MenuWishes wishes,
                                      CheckProgress& progress);

} // namespace obrin
