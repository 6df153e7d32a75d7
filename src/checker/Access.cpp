#include "checker/Access.h"

#include "platform/Failure.h"
#include "platform/File.h"
#include "platform/Folder.h"

namespace obrin {

namespace {

DWORD ErrorOfOpening(const std::string& path, DWORD access, DWORD flags) {
    const HANDLE handle =
        CreateFileA(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, flags, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return GetLastError();
    CloseHandle(handle);
    return ERROR_SUCCESS;
}

bool IsReadOnlyFile(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    // A folder may have the attribute too, but Windows ignores it there.
    constexpr DWORD tested = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & tested) == FILE_ATTRIBUTE_READONLY;
}

bool MeansMissing(DWORD error) {
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

Trouble MakeRefusal(DWORD error, const std::string& refusedUse, const std::string& right) {
    const bool isBusy = error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION;
    return {"cannot be " + refusedUse + " (" + PlatformText(error) + ")",
            isBusy ? "close the program that keeps it open"
                   : "give the operators the right to " + right + " it"};
}

Trouble MakeFileTrouble(const std::string& path, DWORD error, const char* refusedUse, const char* right) {
    if (FolderExists(path))
        return {"a folder has this name", "remove the folder"};
    if (MeansMissing(error))
        return {"missing", "put it there"};
    return MakeRefusal(error, refusedUse, right);
}

} // namespace

bool MayBeFile(const std::string& path) {
    try {
        return FileExists(path);
    } catch (const RunTimeError&) {
        return true;
    }
}

bool IsMissing(const std::string& path) {
    return !MayBeFile(path) && !FolderExists(path);
}

std::optional<Trouble> FindReadTrouble(const std::string& path) {
    try {
        File(path, File::Use::Read).Close();
        return std::nullopt;
    } catch (const RunTimeError& error) {
        return MakeFileTrouble(path, error.Code(), "read", "read");
    }
}

std::optional<std::string> ReadOrAddFinding(Findings& findings, Effect effect, const std::string& path) {
    try {
        return ReadFileBytes(path);
    } catch (const RunTimeError& error) {
        Add(findings, effect, {path}, MakeFileTrouble(path, error.Code(), "read", "read"));
        return std::nullopt;
    }
}

std::optional<Trouble> FindWriteTrouble(const std::string& path) {
    if (IsReadOnlyFile(path))
        return Trouble{"read-only", "take this attribute away (attrib -r)"};
    if (IsMissing(path))
        return std::nullopt; // opening it for writing would make it
    try {
        File(path, File::Use::Write).Close();
        return std::nullopt;
    } catch (const RunTimeError& error) {
        return MakeFileTrouble(path, error.Code(), "written", "modify");
    }
}

std::optional<Trouble> FindDeleteTrouble(const std::string& path) {
    const DWORD error = ErrorOfOpening(path, DELETE, 0);
    if (error == ERROR_SUCCESS)
        return std::nullopt;
    return MakeFileTrouble(path, error, "replaced", "modify");
}

std::optional<Trouble> FindReplaceTrouble(const std::string& path) {
    // The menu does not replace a read-only file, even if Windows grants the right to delete it.
    return IsReadOnlyFile(path) || FindDeleteTrouble(path) ? FindWriteTrouble(path) : std::nullopt;
}

std::optional<Trouble> FindStartTrouble(const std::string& path) {
    if (auto trouble = FindReadTrouble(path))
        return trouble;
    DWORD type = 0;
    if (GetBinaryTypeA(path.c_str(), &type) && (type == SCS_32BIT_BINARY || type == SCS_64BIT_BINARY))
        return std::nullopt;
    return Trouble{"not a program that Windows can start", "install it again"};
}

bool HasOtherBitness(const std::string& program) {
    constexpr DWORD ownType = sizeof(void*) == 8 ? SCS_64BIT_BINARY : SCS_32BIT_BINARY;
    DWORD type = 0;
    return GetBinaryTypeA(program.c_str(), &type) && type != ownType;
}

std::optional<Trouble> FindFolderTrouble(const std::string& path) {
    // Windows does not open a folder without FILE_FLAG_BACKUP_SEMANTICS.
    if (ErrorOfOpening(path.substr(0, path.find_last_not_of('\\') + 1), 0, 0) == ERROR_SUCCESS)
        return Trouble{"a file has the name of this folder", "remove the file"};
    // FILE_DELETE_CHILD is not tested: it comes only with full control, and a right to each file is enough.
    const DWORD error = ErrorOfOpening(path, FILE_ADD_FILE, FILE_FLAG_BACKUP_SEMANTICS);
    if (error == ERROR_SUCCESS)
        return std::nullopt;
    if (MeansMissing(error))
        return Trouble{"this folder is missing", "make it, with what belongs in it"};
    return MakeRefusal(error, "used for new files", "modify");
}

} // namespace obrin
