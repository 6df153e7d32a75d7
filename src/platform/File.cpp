#include "platform/File.h"

#include "common/Lines.h"
#include "platform/Failure.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace obrin {

namespace {

// As much as a first line takes in practice; more is read only for longer ones.
constexpr std::size_t firstLineBytes = 4096;

bool IsBusy(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
           error == ERROR_USER_MAPPED_FILE;
}

// Makes a call about a file, and makes it again for up to a second while somebody has the file open just now:
// another menu, a virus scanner, a backup. Returns false with the last error when it fails.
template <class Call>
bool RetryWhileBusy(Call&& call) {
    constexpr ULONGLONG patience = 1000; // milliseconds
    constexpr DWORD pause = 25;
    const ULONGLONG start = GetTickCount64();
    while (!call()) {
        if (!IsBusy(GetLastError()) || GetTickCount64() - start >= patience)
            return false;
        Sleep(pause);
    }
    return true;
}

HANDLE Open(const std::string& path, File::Use use) {
    struct Mode {
        DWORD access, disposition;
    };
    constexpr std::array<Mode, 4> modes{{
        {GENERIC_READ, OPEN_EXISTING},
        {GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS},
        {GENERIC_WRITE, OPEN_ALWAYS},
        {GENERIC_WRITE, CREATE_NEW},
    }};
    const auto [access, disposition] = modes[static_cast<std::size_t>(use)];
    HANDLE handle = INVALID_HANDLE_VALUE;
    const bool opened = RetryWhileBusy([&] {
        handle = CreateFileA(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                             nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
        return handle != INVALID_HANDLE_VALUE;
    });
    if (!opened)
        ThrowLastError("Opening " + path);
    return handle;
}

} // namespace

File::File(const std::string& filePath, Use use)
    : path(filePath)
    , handle(Open(filePath, use)) {}

void File::Fail(const char* action) const {
    ThrowLastError(action + path);
}

std::string File::Read(std::size_t most) {
    std::string bytes(most, '\0');
    DWORD got = 0;
    if (!RetryWhileBusy(
            [&] { return ReadFile(handle.get(), bytes.data(), static_cast<DWORD>(most), &got, nullptr); }))
        Fail("Reading ");
    bytes.resize(got);
    return bytes;
}

std::string File::ReadToEnd() {
    constexpr std::uint64_t step = 1 << 30; // a call reads no more than 4 GB
    const std::uint64_t size = Size();
    std::string bytes = Read(static_cast<std::size_t>(std::min(size, step)));
    while (bytes.size() < size) {
        const std::string more = Read(static_cast<std::size_t>(std::min(size - bytes.size(), step)));
        if (more.empty())
            break;
        bytes += more;
    }
    return bytes;
}

std::uint64_t File::Size() const {
    LARGE_INTEGER size;
    if (!GetFileSizeEx(handle.get(), &size))
        Fail("Reading ");
    return static_cast<std::uint64_t>(size.QuadPart);
}

void File::Write(std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD done = 0;
        const auto want = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1U << 30));
        if (!RetryWhileBusy([&] { return WriteFile(handle.get(), bytes.data(), want, &done, nullptr); }))
            Fail("Writing ");
        bytes.remove_prefix(done);
    }
}

void File::Seek(std::uint64_t position) {
    LARGE_INTEGER target;
    target.QuadPart = static_cast<LONGLONG>(position);
    if (!SetFilePointerEx(handle.get(), target, nullptr, FILE_BEGIN))
        Fail("Writing ");
}

void File::Truncate() {
    if (!RetryWhileBusy([&] { return SetEndOfFile(handle.get()); }))
        Fail("Writing ");
}

void File::Flush() {
    if (!FlushFileBuffers(handle.get())) {
        // Some shares cannot be asked to; what they were given has been accepted.
        const DWORD error = GetLastError();
        if (error != ERROR_INVALID_FUNCTION && error != ERROR_NOT_SUPPORTED)
            Fail("Writing ");
    }
}

void File::Close() {
    if (!CloseHandle(handle.release())) // of which only this way tells how it went
        Fail("Writing ");
}

std::string ReadFileBytes(const std::string& path) {
    return File(path, File::Use::Read).ReadToEnd();
}

std::optional<std::string> ReadFileIfThere(const std::string& path) {
    try {
        return ReadFileBytes(path);
    } catch (const RunTimeError&) {
        if (FileExists(path))
            throw;
        return std::nullopt;
    }
}

std::string ReadFirstLine(const std::string& path) {
    File file(path, File::Use::Read);
    std::string start = file.Read(firstLineBytes);
    // Each further step reads as much as there is already: a line of megabytes takes few steps.
    while (start.find('\r') == std::string::npos) {
        const std::string more = file.Read(start.size());
        if (more.empty())
            break;
        start += more;
    }
    const auto line = LineReader(start).Next();
    if (!line)
        throw RunTimeError(PlatformError::InvalidData, "Reading the first line of " + path);
    return std::string(*line);
}

void WriteFileBytes(const std::string& path, std::string_view bytes) {
    // Not emptied as it is opened: Windows refuses that for a hidden file.
    File file(path, File::Use::Write);
    file.Write(bytes);
    file.Truncate();
    file.Close();
}

bool FileExists(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    if (const DWORD error = GetLastError(); attributes == INVALID_FILE_ATTRIBUTES &&
                                            error != ERROR_FILE_NOT_FOUND && error != ERROR_PATH_NOT_FOUND &&
                                            error != ERROR_INVALID_NAME && error != ERROR_BAD_PATHNAME)
        throw RunTimeError(error, "Looking for " + path); // it may well be there
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool NormalFileExists(const std::string& path) {
    constexpr DWORD unlisted = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & unlisted) == 0;
}

} // namespace obrin
