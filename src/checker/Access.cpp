#include "checker/Access.h"

#include "platform/Failure.h"
#include "platform/Handle.h"

namespace obrin {

namespace {

// ERROR_SUCCESS when the path can be opened so.
DWORD OpenError(const std::string& path, DWORD access, DWORD flags) {
    const HANDLE handle =
        CreateFileA(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, flags, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return GetLastError();
    const UniqueFile closes(handle);
    return ERROR_SUCCESS;
}

std::string Reason(DWORD error) {
    return error == ERROR_SUCCESS ? "" : PlatformText(error);
}

} // namespace

std::string WhyNotWritable(const std::string& path) {
    return Reason(OpenError(path, GENERIC_READ | GENERIC_WRITE, 0));
}

std::string WhyNotDeletable(const std::string& path) {
    const DWORD error = OpenError(path, DELETE, 0);
    // A reader that keeps it from being deleted goes away again.
    return error == ERROR_SHARING_VIOLATION ? "" : Reason(error);
}

bool IsReadOnly(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

std::string WhyNoFilesIn(const std::string& folder) {
    // Not for deleting in it, too: who may modify a folder deletes by the right to each file.
    return Reason(OpenError(folder, FILE_ADD_FILE, FILE_FLAG_BACKUP_SEMANTICS));
}

} // namespace obrin
