// Folder listings.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace obrin {

/// The process's current directory, the host installation folder. Throws RunTimeError.
std::string CurrentFolder();

/// Whether a folder of that name exists; a file is none.
bool FolderExists(const std::string& path);

/// Makes a folder in one that exists. That another program has made it meanwhile is no failure. Throws
/// RunTimeError.
void CreateFolder(const std::string& path);

struct FolderEntry {
    std::string name;
    bool isFolder;
    bool isHidden; ///< or belongs to the system
};

/// What is there under a path, with its name as it stands on the disk; nothing where that cannot be listed.
std::optional<FolderEntry> FindEntry(const std::string& path);

/// Everything in a folder, in the order of the file system. Throws RunTimeError.
std::vector<FolderEntry> ListFolder(const std::string& folder);

/// Names of the normal files of a folder (read-only and archived ones too, no folders, no hidden or system
/// files), in the order of the file system. Throws RunTimeError.
std::vector<std::string> ListNormalFiles(const std::string& folder);

/// With drive or server and every folder. Throws RunTimeError.
std::string FullPath(const std::string& path);

/// The folder's short form, or an empty text when it cannot be had in 164 bytes.
std::string ShortPath(const std::string& path);

} // namespace obrin
