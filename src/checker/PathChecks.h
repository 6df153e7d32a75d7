// The checks of everything that the checker is asked for: installations and single menu files.
#pragma once

#include "checker/Finding.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace obrin {

struct CheckResult {
    Findings findings;
    std::string trees; ///< of all systems, when wanted
    std::size_t menuFiles = 0;
    std::vector<std::string> failures; ///< of paths that cannot be checked, a line each
};

/// Called after each menu file, with how many have been checked and how many there are.
using Progress = std::function<void(std::size_t done, std::size_t all)>;

/// Checks each path: a folder as an installation (an empty path is the current folder), a file or every file
/// of a name with wildcards as a menu file. Changes no file.
CheckResult CheckPaths(const std::vector<std::string>& paths, bool withTrees, const Progress& progress);

} // namespace obrin
