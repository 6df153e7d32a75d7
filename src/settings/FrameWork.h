// Paths whose folders are there: which of them are looked at and made, in which order. "\" is the only
// separator.
#pragma once

#include "common/Text.h"

#include <functional>
#include <string>

namespace obrin {

/// The file system as the walk along a path needs it. The folder handed in ends in "\".
struct FolderCalls {
    std::function<bool(const std::string& folder)> exists;
    std::function<void(const std::string& folder)> create; ///< one level; throws when it cannot
    LeadByteTest isLeadByte = nullptr;                     ///< in the names of folders
};

/// Whether every folder of the path exists afterwards; missing ones are made when `create` is set. The path
/// may name a file: a last component that holds a "." is taken for one.
bool EnsurePath(const std::string& path, bool create, const FolderCalls& folders);

/// The walk along a path that begins with "\\", from the share on. The path ends in "\".
bool EnsurePathUnc(const std::string& path, bool create, const FolderCalls& folders);

/// The walk along any other path, from the first folder below the drive on. The path ends in "\".
bool EnsurePathLocal(const std::string& path, bool create, const FolderCalls& folders);

} // namespace obrin
