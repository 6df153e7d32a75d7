#include "settings/FrameWork.h"

namespace obrin {

namespace {

// Walks down the path from the "\" at `root`. It does not test what is in front of that, a drive or a server.
bool Walk(const std::string& path, std::size_t root, bool create, const FolderCalls& folders) {
    if (root == std::string::npos)
        return false;
    const auto next = [&](std::size_t start) { return FindCharacter(path, '\\', folders.isLeadByte, start); };
    for (auto end = next(root + 1); end != std::string::npos; end = next(end + 1)) {
        const std::string folder = path.substr(0, end + 1);
        if (folders.exists(folder))
            continue;
        if (!create)
            return false;
        folders.create(folder);
    }
    return true;
}

} // namespace

bool EnsurePath(const std::string& path, bool create, const FolderCalls& folders) {
    const auto lastComponent =
        FindLastCharacter(path, '\\', folders.isLeadByte) + 1; // 0 if there is no "\": npos + 1
    const bool namesFile = path.find('.', lastComponent) != std::string::npos;
    const std::string folder =
        EnsureTrailingBackslash(namesFile ? path.substr(0, lastComponent) : path, folders.isLeadByte);
    return folder.starts_with("\\\\") ? EnsurePathUnc(folder, create, folders)
                                      : EnsurePathLocal(folder, create, folders);
}

bool EnsurePathUnc(const std::string& path, bool create, const FolderCalls& folders) {
    return Walk(path, FindCharacter(path, '\\', folders.isLeadByte, 2), create, folders);
}

bool EnsurePathLocal(const std::string& path, bool create, const FolderCalls& folders) {
    return Walk(path, FindCharacter(path, '\\', folders.isLeadByte), create, folders);
}

} // namespace obrin
