// Everything about an installation but the contents of its menu files.
#pragma once

#include "checker/Finding.h"
#include "platform/Folder.h"

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

/// What is said of a file that the menu does not list for its name or its attributes; empty of others.
std::string WhyNotListed(const FolderEntry& file);

} // namespace obrin
