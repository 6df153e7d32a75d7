#include "platform/File.h"

#include "common/Lines.h"
#include "platform/Failure.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace obrin {

namespace {

constexpr std::size_t blockBytes = 16'384;

bool IsBusy(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
           error == ERROR_USER_MAPPED_FILE;
}

// Calls a function of Windows and retries it for up to a second while the file is locked, for example by a
// virus scanner or a backup. If it fails, returns false and keeps the last error.
template <class Call>
bool RetryWhileBusy(Call&& call) {
    constexpr ULONGLONG timeLimit = 1000; // milliseconds
    constexpr DWORD pause = 25;
    const ULONGLONG start = GetTickCount64();
    while (!call()) {
        if (!IsBusy(GetLastError()) || GetTickCount64() - start >= timeLimit)
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
    const Mode mode = modes[static_cast<std::size_t>(use)];
    HANDLE handle = INVALID_HANDLE_VALUE;
    const bool opened = RetryWhileBusy([&] {
        handle =
            CreateFileA(path.c_str(), mode.access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                        nullptr, mode.disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
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

std::string File::Read(std::size_t maxBytes) {
    std::string bytes(maxBytes, '\0');
    DWORD count = 0;
    if (!RetryWhileBusy([&] {
            return ReadFile(handle.get(), bytes.data(), static_cast<DWORD>(maxBytes), &count, nullptr);
        }))
        Fail("Reading ");
    bytes.resize(count);
    return bytes;
}

std::string File::ReadToEnd() {
    std::string bytes;
    for (std::string block = Read(blockBytes); !block.empty(); block = Read(blockBytes))
        bytes += block;
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
        DWORD written = 0;
        const auto count = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1U << 30));
        if (!RetryWhileBusy([&] { return WriteFile(handle.get(), bytes.data(), count, &written, nullptr); }))
            Fail("Writing ");
        bytes.remove_prefix(written);
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
        // Some shares do not support this call. They have accepted the bytes already.
        const DWORD error = GetLastError();
        if (error != ERROR_INVALID_FUNCTION && error != ERROR_NOT_SUPPORTED)
            Fail("Writing ");
    }
}

void File::Close() {
    if (!CloseHandle(handle.release()))
        Fail("Writing ");
}

std::string ReadFileBytes(const std::string& path) {
    return File(path, File::Use::Read).ReadToEnd();
}

std::optional<std::string> ReadFileIfThere(const std::string& path) {
    try {
        return ReadFileBytes(path);
    } catch (const RunTimeError& error) {
        // Does not ask FileExists after ERROR_FILE_NOT_FOUND: another menu may have made the file since.
        if (error.Code() == ERROR_FILE_NOT_FOUND || !FileExists(path))
            return std::nullopt;
        throw;
    }
}

std::string ReadFirstLine(const std::string& path) {
    File file(path, File::Use::Read);
    std::string start;
    for (std::string block = file.Read(blockBytes); !block.empty(); block = file.Read(blockBytes)) {
        start += block;
        if (block.find('\r') != std::string::npos)
            break;
    }
    const auto line = LineReader(start).Next();
    if (!line)
        throw RunTimeError(PlatformError::InvalidData, "Reading the first line of " + path);
    return std::string(*line);
}

void WriteFileBytes(const std::string& path, std::string_view bytes) {
    // Truncates at the end: Windows refuses to open a hidden file with CREATE_ALWAYS.
    File file(path, File::Use::Write);
    file.Write(bytes);
    file.Truncate();
    file.Close();
}

bool FileExists(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES)
        return (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
    const DWORD error = GetLastError();
    if (error != ERROR_FILE_NOT_FOUND && error != ERROR_PATH_NOT_FOUND && error != ERROR_INVALID_NAME &&
        error != ERROR_BAD_PATHNAME)
        throw RunTimeError(error, "Looking for " + path); // the file may exist
    return false;
}

bool NormalFileExists(const std::string& path) {
    constexpr DWORD notNormal = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & notNormal) == 0;
}

} // namespace obrin
