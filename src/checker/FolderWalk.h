// Checks an installation, except for the contents of its menu files and settings files.
#pragma once

#include "checker/Finding.h"

#include <string>
#include <vector>

namespace obrin {

/// A file whose contents are still to be checked.
struct FoundMenuFile {
    std::string path;
    bool isShown; ///< the menu lists it, or remembers it as the last system
};

struct FolderFindings {
    Findings findings;
    std::vector<FoundMenuFile> menuFiles;
};

/// Checks the installation in a folder; an empty path is the current folder. Findings name each file by this
/// path and its name. Throws RunTimeError when the folder cannot be listed.
FolderFindings WalkFolder(const std::string& folder);

} // namespace obrin
