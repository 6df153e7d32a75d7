#include "platform/FileReplacement.h"

#include "platform/Failure.h"
#include "platform/File.h"
#include "platform/Folder.h"

namespace obrin {

namespace {

// Nothing when the file cannot be read.
std::optional<std::string> TryReadFile(const std::string& path) {
    try {
        return ReadFileIfThere(path);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

// Makes a new file beside the one that it is for. Its name is its own, as other workstations save at the same
// moment. Nothing when no file may be made there.
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

// Whether a file may be taken out of its place: its users need the right, and others who have it open must
// allow it. Asked first, as a replacement that fails in the middle leaves things behind on some platforms.
bool CanBeReplaced(const std::string& path) {
    const HANDLE handle =
        CreateFileA(path.c_str(), DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, 0, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    const UniqueFile closes(handle);
    return true;
}

// Puts the temporary file in the place of the other one, whose rights and attributes stay; or just there when
// the other one does not exist, or is gone after a replacement that failed half-way. Returns whether it has
// happened.
bool MoveIntoPlace(const std::string& path, const std::string& temporary) {
    if (CanBeReplaced(path) &&
        ReplaceFileA(FullPath(path).c_str(), FullPath(temporary).c_str(), nullptr, 0, nullptr, nullptr))
        return true;
    return GetFileAttributesA(path.c_str()) == INVALID_FILE_ATTRIBUTES &&
           MoveFileExA(temporary.c_str(), path.c_str(), MOVEFILE_WRITE_THROUGH);
}

// The last thing to try: writes into the file itself.
void WriteInPlace(const std::string& path, std::string_view bytes, const std::optional<std::string>& current,
                  const std::string& temporary) {
    std::string action = "Writing " + path; // the file that the user knows
    try {
        File file(path, File::Use::Write);
        WriteAndFlush(file, bytes);
    } catch (const RunTimeError& error) {
        // Refused before the first byte, as by missing rights or a lock.
        const bool isUnchanged = TryReadFile(path) == current;
        if (isUnchanged || temporary.empty())
            DeleteFileA(temporary.c_str());
        else
            action += "\r\nIts new contents are complete in " + temporary;
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
        throw RunTimeError(ERROR_ACCESS_DENIED, "Writing " + path); // some platforms would replace them
    std::string temporary;
    if (auto file = MakeTemporaryFile(path)) {
        temporary = file->Path();
        try {
            WriteAndFlush(*file, bytes);
        } catch (const RunTimeError& error) {
            file.reset();
            DeleteFileA(temporary.c_str());
            throw RunTimeError(error.Code(), "Writing " + path); // on a full disk, say: the old contents stay
        }
        if (MoveIntoPlace(path, temporary))
            return;
        // A share may report a failure although the replacement has happened.
        if (TryReadFile(path) == bytes) {
            DeleteFileA(temporary.c_str());
            return;
        }
    }
    WriteInPlace(path, bytes, current, temporary);
}

} // namespace obrin
