// The walk over installations and menu files, and everything that is wrong with them.
#pragma once

#include "checker/Finding.h"

#include <atomic>
#include <cstddef>
#include <string>
#include <vector>

namespace obrin {

struct CheckResult {
    std::vector<Finding> findings;
    std::string trees; ///< of all systems, when wished
    std::size_t menuFiles = 0;
};

/// How far a check is, for another thread to tell.
struct CheckProgress {
    std::atomic<std::size_t> done = 0; ///< menu files
    std::atomic<std::size_t> all = 0;  ///< 0 before they are counted
};

/// Checks each path: a folder as an installation, a file as a menu file. Findings name the files as the path
/// leads to them. Changes no file. Throws RunTimeError for a path where there is nothing.
CheckResult CheckPaths(const std::vector<std::string>& paths, bool withTrees, CheckProgress& progress);

} // namespace obrin
