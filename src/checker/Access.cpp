#include "checker/Access.h"

#include "platform/Failure.h"
#include "platform/File.h"
#include "platform/Folder.h"

namespace obrin {

namespace {

// ERROR_SUCCESS when the path can be opened so.
DWORD ErrorOfOpening(const std::string& path, DWORD access, DWORD flags) {
    const HANDLE handle =
        CreateFileA(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, flags, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return GetLastError();
    const UniqueHandle closes(handle);
    return ERROR_SUCCESS;
}

DWORD ErrorOfOpening(const std::string& path, File::Use use) {
    try {
        File(path, use).Close();
        return ERROR_SUCCESS;
    } catch (const RunTimeError& error) {
        return error.Code();
    }
}

bool MeansMissing(DWORD error) {
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

Trouble Refused(const std::string& done, DWORD error, const std::string& right) {
    const std::string rights = "give the operators the right to " + right + " it";
    const bool isBusy = error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION;
    return {"cannot be " + done + " (" + PlatformText(error) + ")",
            isBusy ? "close the program that keeps it open" : rights};
}

Trouble FolderInPlace() {
    return {"a folder has this name", "remove the folder"};
}

Trouble ReadOnly() {
    return {"read-only", "take this attribute away (attrib -r)"};
}

bool IsReadOnly(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    constexpr DWORD isFolder = FILE_ATTRIBUTE_DIRECTORY; // for which it means nothing
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & isFolder) == 0 &&
           (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

} // namespace

bool MayBeFile(const std::string& path) {
    try {
        return FileExists(path);
    } catch (const RunTimeError&) {
        return true;
    }
}

std::optional<Trouble> ReadTrouble(const std::string& path, const char* remedyIfMissing) {
    if (FolderExists(path))
        return FolderInPlace();
    const DWORD error = ErrorOfOpening(path, File::Use::Read);
    if (MeansMissing(error))
        return Trouble{"missing", remedyIfMissing};
    if (error != ERROR_SUCCESS)
        return Refused("read", error, "read");
    return std::nullopt;
}

std::optional<std::string> ReadOrAdd(Findings& findings, Effect effect, const std::string& path) {
    auto trouble = ReadTrouble(path);
    try {
        if (!trouble)
            return ReadFileBytes(path);
    } catch (const RunTimeError& error) {
        trouble = Refused("read", error.Code(), "read");
    }
    Add(findings, effect, {path}, *trouble);
    return std::nullopt;
}

std::optional<Trouble> WriteTrouble(const std::string& path) {
    if (FolderExists(path))
        return FolderInPlace();
    // Opened so, a missing file would be made.
    const DWORD error = MayBeFile(path) ? ErrorOfOpening(path, File::Use::Write) : ERROR_SUCCESS;
    if (error == ERROR_SUCCESS)
        return std::nullopt;
    return IsReadOnly(path) ? ReadOnly() : Refused("written", error, "modify");
}

std::optional<Trouble> ReplaceTrouble(const std::string& path) {
    if (IsReadOnly(path))
        return ReadOnly();
    auto trouble = WriteTrouble(path);
    const bool canBeReplaced = !FolderExists(path) && ErrorOfOpening(path, DELETE, 0) == ERROR_SUCCESS;
    return canBeReplaced ? std::nullopt : trouble;
}

std::optional<Trouble> DeleteTrouble(const std::string& path) {
    const DWORD error = ErrorOfOpening(path, DELETE, 0);
    // A program that keeps it from being deleted closes it again.
    if (error == ERROR_SUCCESS || error == ERROR_SHARING_VIOLATION)
        return std::nullopt;
    return Refused("replaced", error, "modify");
}

std::optional<Trouble> StartTrouble(const std::string& path) {
    if (auto trouble = ReadTrouble(path))
        return trouble;
    DWORD type = 0;
    if (GetBinaryTypeA(path.c_str(), &type) && (type == SCS_32BIT_BINARY || type == SCS_64BIT_BINARY))
        return std::nullopt;
    return Trouble{"not a program that Windows can start", "install it again"};
}

std::optional<Trouble> FolderTrouble(const std::string& path) {
    if (MayBeFile(path))
        return Trouble{"a file has the name of this folder", "remove the file"};
    if (!FolderExists(path))
        return Trouble{"this folder is missing", "make it, with what belongs in it"};
    const DWORD error = ErrorOfNewFilesIn(path);
    if (error != ERROR_SUCCESS)
        return Refused("used for new files", error, "modify");
    return std::nullopt;
}

unsigned long ErrorOfNewFilesIn(const std::string& folder) {
    // Without the right to delete in it: users who may modify a folder delete by their right to each file.
    return ErrorOfOpening(folder, FILE_ADD_FILE, FILE_FLAG_BACKUP_SEMANTICS);
}

} // namespace obrin
