// Everything about an installation but the contents of its menu files.
#pragma once

#include "checker/Finding.h"

#include <string>
#include <vector>

namespace obrin {

struct FolderCheck {
    std::vector<Finding> findings;
    std::vector<std::string> menuFiles; ///< paths, in the order of the folder listing
};

/// Looks at the installation in a folder, empty for the current one. Throws RunTimeError when the folder
/// cannot be listed.
FolderCheck CheckFolder(const std::string& folder);

/// What is said of a file that looks like a menu file and is none by its name.
constexpr const char* notListedByName =
    "the name does not end in .mnu in small letters: the menu does not list "
    "this system; rename the file";

} // namespace obrin
