// Files by the platform's own calls: every call is checked, and a file lives no longer than the function
// that uses it. Paths are relative to the current directory, which never changes.
#pragma once

#include "platform/Handle.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace obrin {

/// An open file. Other programs and workstations may read, write and replace it meanwhile: the files of the
/// installation are shared without locks. Opening, reading and writing are tried again for up to a second
/// while somebody else keeps the file from it.
class File {
public:
    enum class Use {
        Read,      ///< must exist
        ReadWrite, ///< created when missing
        Write,     ///< created when missing; the old contents stay until they are written over or truncated
        New,       ///< for writing, must not exist
    };

    /// Throws RunTimeError when the file cannot be opened so.
    File(const std::string& filePath, Use use);

    /// The next bytes, at most `most` (up to 1 GB); none at the end of the file. Throws RunTimeError.
    std::string Read(std::size_t most);
    /// Everything from the current position to the end. Throws RunTimeError.
    std::string ReadToEnd();
    /// In bytes. Throws RunTimeError.
    std::uint64_t Size() const;
    /// Writes at the current position and moves it behind the bytes. Throws RunTimeError.
    void Write(std::string_view bytes);
    /// Moves the current position, in bytes from the start. Throws RunTimeError.
    void Seek(std::uint64_t position);
    /// Ends the file at the current position. Throws RunTimeError.
    void Truncate();
    /// Waits until the written bytes are on disk. Throws RunTimeError: a share reports here what it could not
    /// store.
    void Flush();
    /// Throws RunTimeError, unlike the destructor, which closes the file too.
    void Close();

    const std::string& Path() const { return path; }

private:
    [[noreturn]] void Fail(const char* action) const;

    std::string path;
    UniqueFile handle;
};

/// All bytes of a file. Throws RunTimeError.
std::string ReadFileBytes(const std::string& path);

/// All bytes of a file, or nothing when no file (no folder) of that name exists. Throws RunTimeError.
std::optional<std::string> ReadFileIfThere(const std::string& path);

/// The first line of a file, of which no more is read than needed. Throws RunTimeError, also for a file
/// without any byte.
std::string ReadFirstLine(const std::string& path);

/// Writes a whole file in its place (created or truncated). Throws RunTimeError.
void WriteFileBytes(const std::string& path, std::string_view bytes);

/// Whether a file (no folder) of that name exists. A name with wildcards names no file. Throws RunTimeError
/// when that cannot be told, as on a share that is not reached.
bool FileExists(const std::string& path);

/// Whether a folder listing of normal files shows that name: no folder, not hidden, no system file.
bool NormalFileExists(const std::string& path);

} // namespace obrin
