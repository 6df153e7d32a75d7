// Lists, tests and creates folders, and converts paths.
#pragma once

#include <string>
#include <vector>

namespace obrin {

/// Returns the current directory, which is the host installation folder. Throws RunTimeError.
std::string CurrentFolder();

/// Returns whether a folder of that name exists. A file is not a folder.
bool FolderExists(const std::string& path);

/// Creates one folder, if it does not exist. The folder above it must exist. Throws RunTimeError.
void CreateFolder(const std::string& path);

struct FolderEntry {
    std::string name;
    bool isFolder;
    bool isHidden; ///< hidden or a system file
};

/// Returns all entries of a folder in the order of the file system. Throws RunTimeError.
std::vector<FolderEntry> ListFolder(const std::string& folder);

/// Returns the entries that match a pattern such as "C:\Host\*.mnu". Throws RunTimeError.
std::vector<FolderEntry> ListMatching(const std::string& pattern);

/// Returns the absolute path. Throws RunTimeError.
std::string FullPath(const std::string& path);

/// Returns the short form (8.3 names) of a path; empty if there is none or it is longer than 163 bytes.
std::string ShortPath(const std::string& path);

} // namespace obrin
