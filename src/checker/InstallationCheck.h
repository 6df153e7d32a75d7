// The walk over installations and menu files, and everything that is wrong with them.
#pragma once

#include "checker/Finding.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace obrin {

struct CheckResult {
    std::vector<Finding> findings;
    std::string trees; ///< of all systems, when wished
    std::size_t menuFiles = 0;
};

/// Called before each menu file is read.
using CheckProgress = std::function<void(std::size_t done, std::size_t all)>;

/// Checks each path: a folder as an installation, a file as a menu file. Findings name the files as the path
/// leads to them. Changes no file. Throws RunTimeError for a path where there is nothing.
CheckResult CheckPaths(const std::vector<std::string>& paths, bool withTrees, const CheckProgress& progress);

} // namespace obrin
