// Files by the platform's own calls: every call is checked, and a file lives no longer than the function
// that uses it. Paths are relative to the current directory, which never changes.
#pragma once

#include "platform/Handle.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace obrin {

/// An open file. Other programs and workstations may read, write and replace it meanwhile: the files of the
/// installation are shared without locks.
class File {
public:
    enum class Use {
        Read,      ///< must exist
        ReadWrite, ///< created when missing
        Truncate,  ///< for writing, created or emptied
        InPlace,   ///< for writing over what is there, must exist
        New,       ///< for writing and for DeleteWhenClosed, must not exist
    };

    /// Throws RunTimeError when the file cannot be opened so.
    File(const std::string& filePath, Use use);

    /// The next bytes, at most `most` (up to 1 GB); none at the end of the file. Throws RunTimeError.
    std::string Read(std::size_t most);
    /// Fills the room with the next bytes as far as there are any, and returns how many. Throws RunTimeError.
    std::size_t Read(std::span<char> room);
    /// Everything from the current position to the end. Throws RunTimeError.
    std::string ReadToEnd();
    /// Appends at the current position. Throws RunTimeError.
    void Write(std::string_view bytes);
    /// Moves the current position, in bytes from the start. Throws RunTimeError.
    void Seek(std::uint64_t position);
    /// Makes the current position the end of the file. Throws RunTimeError.
    void EndHere();
    /// Keeps the other menus, which do the same, from reading (`toWrite`) or from writing this file in place
    /// until it is closed. Other programs notice nothing. Waits half a second at most: a menu that hangs in
    /// the middle of it holds up nobody.
    void AwaitTurn(bool toWrite);
    /// Waits until the written bytes are on disk. Throws RunTimeError, which is where a share reports what it
    /// could not store.
    void Flush();
    void FlushAndClose();
    /// Lets the file go with this object, whatever rights it has been given since it was created as new.
    void DeleteWhenClosed() noexcept;
    /// Closes the file, for contents that may get lost when the power does. Throws RunTimeError.
    void Close();

    const std::string& Path() const { return path; }

private:
    [[noreturn]] void Fail(const char* doing) const;

    std::string path;
    UniqueFile handle;
};

/// All bytes of a file. Throws RunTimeError.
std::string ReadFileBytes(const std::string& path);

/// All bytes of a file, or nothing when no file (no folder) of that name exists; not while another menu
/// writes it in place. A look at a share is waited for: this takes one where FileExists and a read would take
/// two. Throws RunTimeError.
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
