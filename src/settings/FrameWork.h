// Tests and creates the folders of a path. "\" is the only separator.
#pragma once

#include "common/Text.h"

#include <functional>
#include <string>

namespace obrin {

/// The calls of the file system that EnsurePath needs. Each gets a path that ends with "\".
struct FolderCalls {
    std::function<bool(const std::string& folder)> exists;
    std::function<void(const std::string& folder)> create; ///< creates one level; throws on failure
    LeadByteTest isLeadByte = nullptr;
};

/// Returns whether all folders of the path exist. If `create` is true, creates missing ones first. Ignores a
/// last component that contains a ".", because it names a file.
bool EnsurePath(const std::string& path, bool create, const FolderCalls& folders);

/// Does the same for a path that begins with "\\" and ends with "\". Starts at the share.
bool EnsurePathUnc(const std::string& path, bool create, const FolderCalls& folders);

/// Does the same for any other path that ends with "\". Starts at the first folder below the drive.
bool EnsurePathLocal(const std::string& path, bool create, const FolderCalls& folders);

} // namespace obrin
