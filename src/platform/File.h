// Reads and writes files and checks every call. The program never changes the current directory.
#pragma once

#include "platform/Handle.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace obrin {

/// An open file. Takes no lock: other programs and workstations may read, write and replace the file at the
/// same time. Retries for up to a second if another program locks the file.
class File {
public:
    enum class Use {
        Read,      ///< the file must exist
        ReadWrite, ///< creates the file if it is missing
        Write,     ///< creates the file if it is missing, does not truncate it
        New,       ///< for writing; the file must not exist
    };

    /// Opens the file. Throws RunTimeError.
    File(const std::string& filePath, Use use);

    /// Reads up to `maxBytes` (at most 1 GB); returns no bytes at the end of the file. Throws RunTimeError.
    std::string Read(std::size_t maxBytes);
    /// Reads from the current position to the end. Throws RunTimeError.
    std::string ReadToEnd();
    /// Returns the size in bytes. Throws RunTimeError.
    std::uint64_t Size() const;
    /// Writes at the current position and advances it. Throws RunTimeError.
    void Write(std::string_view bytes);
    /// Sets the current position in bytes from the start. Throws RunTimeError.
    void Seek(std::uint64_t position);
    /// Truncates the file at the current position. Throws RunTimeError.
    void Truncate();
    /// Waits until the written bytes are on disk. Throws RunTimeError if they could not be stored.
    void Flush();
    /// Closes the file. Throws RunTimeError, unlike the destructor, which also closes it.
    void Close();

    const std::string& Path() const { return path; }

private:
    [[noreturn]] void Fail(const char* action) const;

    std::string path;
    UniqueHandle handle;
};

/// Reads all bytes of a file. Throws RunTimeError.
std::string ReadFileBytes(const std::string& path);

/// Reads all bytes of a file. Returns nothing if there is no file of that name. Throws RunTimeError.
std::optional<std::string> ReadFileIfThere(const std::string& path);

/// Reads a file only as far as its first line, and returns that. Throws RunTimeError, also for an empty file.
std::string ReadFirstLine(const std::string& path);

/// Writes a whole file in place. Creates it if it is missing. Throws RunTimeError.
void WriteFileBytes(const std::string& path, std::string_view bytes);

/// Returns whether a file of that name exists. A folder is not a file. Throws RunTimeError if Windows cannot
/// tell, for example because a share cannot be reached.
bool FileExists(const std::string& path);

/// Returns whether a file of that name exists that is neither hidden nor a system file.
bool NormalFileExists(const std::string& path);

} // namespace obrin
