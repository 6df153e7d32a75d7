// The walk over an installation: everything but the contents of its menu files and settings files.
#pragma once

#include "checker/Finding.h"

#include <string>
#include <vector>

namespace obrin {

/// A file whose contents are still to be checked.
struct FoundMenuFile {
    std::string path;
    bool isShown; ///< the menu lists it, or remembers it on this workstation
};

struct FolderFindings {
    Findings findings;
    std::vector<FoundMenuFile> menuFiles;
};

/// Looks at the installation in a folder, empty for the current one. Findings name the files as this path
/// leads to them. Throws RunTimeError when the folder cannot be listed.
FolderFindings WalkFolder(const std::string& folder);

} // namespace obrin
