// Checks the installations and menu files that the user names.
#pragma once

#include "checker/Finding.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace obrin {

struct CheckResult {
    Findings findings;
    std::string trees; ///< a text of all systems; empty unless it is wanted
    std::size_t menuFileCount = 0;
    std::vector<std::string> failures; ///< a line for each path that cannot be checked
};

/// Called after each menu file, with how many have been checked and how many there are.
using Progress = std::function<void(std::size_t done, std::size_t all)>;

/// Checks each folder as an installation, and each file as a menu file. An empty path is the current folder,
/// and a file name may hold wildcards. Changes no file.
CheckResult CheckPaths(const std::vector<std::string>& paths, bool withTrees, const Progress& progress);

} // namespace obrin
