#include "platform/Folder.h"

#include "platform/Failure.h"
#include "platform/Handle.h"
#include "platform/Workstation.h"

#include <array>

namespace obrin {

namespace {

FolderEntry MakeEntry(const WIN32_FIND_DATAA& found) {
    const DWORD attributes = found.dwFileAttributes;
    return {.name = found.cFileName,
            .isFolder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
            .isHidden = (attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0};
}

} // namespace

std::string CurrentFolder() {
    std::string folder(GetCurrentDirectoryA(0, nullptr), '\0');
    const DWORD length = GetCurrentDirectoryA(static_cast<DWORD>(folder.size()), folder.data());
    if (length == 0 || length >= folder.size())
        ThrowLastError("Reading the current folder");
    folder.resize(length);
    return folder;
}

bool FolderExists(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

void CreateFolder(const std::string& path) {
    if (CreateDirectoryA(path.c_str(), nullptr))
        return;
    const DWORD error = GetLastError();
    if (!FolderExists(path))
        throw RunTimeError(error, "Making the folder " + path);
}

std::vector<FolderEntry> ListFolder(const std::string& folder) {
    return ListMatching(EnsureTrailingBackslash(folder, CodePageLeadByteTest()) + "*");
}

std::vector<FolderEntry> ListMatching(const std::string& pattern) {
    std::vector<FolderEntry> entries;
    WIN32_FIND_DATAA entry;
    const HANDLE found = FindFirstFileA(pattern.c_str(), &entry);
    if (found == INVALID_HANDLE_VALUE) {
        if (GetLastError() == ERROR_FILE_NOT_FOUND) // nothing matches
            return entries;
        ThrowLastError("Listing " + pattern);
    }
    const UniqueSearch search(found);
    do {
        entries.push_back(MakeEntry(entry));
    } while (FindNextFileA(search.get(), &entry));
    if (GetLastError() != ERROR_NO_MORE_FILES)
        ThrowLastError("Listing " + pattern);
    return entries;
}

std::string FullPath(const std::string& path) {
    std::string full(GetFullPathNameA(path.c_str(), 0, nullptr, nullptr), '\0');
    const DWORD length =
        GetFullPathNameA(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    if (length == 0 || length >= full.size())
        ThrowLastError("Getting the full path of " + path);
    full.resize(length);
    return full;
}

std::string ShortPath(const std::string& path) {
    std::array<char, 165> buffer{};
    constexpr DWORD size = buffer.size() - 1;
    const DWORD length = GetShortPathNameA(path.c_str(), buffer.data(), size);
    // If the path does not fit, the call returns the size that it needs.
    return length < size ? std::string(buffer.data(), length) : std::string();
}

} // namespace obrin
