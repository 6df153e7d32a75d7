#include "platform/FileReplacement.h"

#include "platform/Failure.h"
#include "platform/File.h"
#include "platform/Folder.h"

namespace obrin {

namespace {

// Returns nothing if the file cannot be read.
std::optional<std::string> TryReadFile(const std::string& path) {
    try {
        return ReadFileIfThere(path);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

// Creates a file next to `path` with a name that no other workstation uses. Returns nothing if that fails,
// for example because the user has no right to create files.
std::optional<File> MakeTemporaryFile(const std::string& path) {
    for (DWORD number = GetTickCount();; ++number) {
        try {
            return std::optional<File>(std::in_place, path + "." + std::to_string(number) + ".tmp",
                                       File::Use::New);
        } catch (const RunTimeError& error) {
            if (error.Code() != ERROR_FILE_EXISTS)
                return std::nullopt;
        }
    }
}

void WriteAndFlush(File& file, std::string_view bytes) {
    file.Write(bytes);
    file.Truncate();
    file.Flush();
    file.Close();
}

// Tests whether the user may delete the file and whether programs that have it open allow that. Asked before
// ReplaceFile, because under Wine a ReplaceFile that fails half-way leaves files behind.
bool CanBeReplaced(const std::string& path) {
    const HANDLE handle =
        CreateFileA(path.c_str(), DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, 0, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    CloseHandle(handle);
    return true;
}

// Replaces the file by the temporary file. Renames the temporary file if there is no file, or none any more:
// a ReplaceFile that fails half-way can remove it. Returns false on failure.
bool MoveIntoPlace(const std::string& path, const std::string& temporary) {
    if (CanBeReplaced(path) &&
        ReplaceFileA(FullPath(path).c_str(), FullPath(temporary).c_str(), nullptr, 0, nullptr, nullptr))
        return true;
    return GetFileAttributesA(path.c_str()) == INVALID_FILE_ATTRIBUTES &&
           MoveFileExA(temporary.c_str(), path.c_str(), MOVEFILE_WRITE_THROUGH);
}

// The fallback for files that cannot be replaced.
void WriteInPlace(const std::string& path, std::string_view bytes, const std::string& temporary) {
    std::string action = "Writing " + path;
    bool opened = false;
    try {
        File file(path, File::Use::Write);
        opened = true;
        WriteAndFlush(file, bytes);
    } catch (const RunTimeError& error) {
        if (opened && !temporary.empty())
            action += "\r\nThe complete new contents are in " + temporary;
        else
            DeleteFileA(temporary.c_str()); // the file is unchanged, or there is no temporary file
        throw RunTimeError(error.Code(), action);
    }
    DeleteFileA(temporary.c_str());
}

} // namespace

void ReplaceFileBytes(const std::string& path, std::string_view bytes, std::optional<std::string> current) {
    if (!current)
        current = TryReadFile(path);
    if (current == bytes)
        return;
    const DWORD attributes = GetFileAttributesA(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES &&
        (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0)
        throw RunTimeError(ERROR_ACCESS_DENIED, "Writing " + path); // Wine would replace a read-only file
    std::string temporary;
    if (auto file = MakeTemporaryFile(path)) {
        temporary = file->Path();
        try {
            WriteAndFlush(*file, bytes);
        } catch (const RunTimeError& error) {
            file.reset();
            DeleteFileA(temporary.c_str());
            throw RunTimeError(error.Code(), "Writing " + path); // names the file that the user knows
        }
        if (MoveIntoPlace(path, temporary))
            return;
        // A share may report a failure although it has replaced the file.
        if (TryReadFile(path) == bytes) {
            DeleteFileA(temporary.c_str());
            return;
        }
    }
    WriteInPlace(path, bytes, temporary);
}

} // namespace obrin
