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

HANDLE Open(const std::string& path, File::Use use) {
    struct Mode {
        DWORD access, disposition;
    };
    constexpr std::array<Mode, 5> modes{{
        {GENERIC_READ, OPEN_EXISTING},
        {GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS},
        {GENERIC_WRITE, OPEN_ALWAYS},
        {GENERIC_WRITE, OPEN_EXISTING},
        {GENERIC_WRITE | DELETE, CREATE_NEW},
    }};
    const auto [access, disposition] = modes[static_cast<std::size_t>(use)];
    const HANDLE handle =
        CreateFileA(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        ThrowLastError("Opening " + path);
    return handle;
}

} // namespace

File::File(const std::string& filePath, Use use)
    : path(filePath)
    , handle(Open(filePath, use)) {
    if (use == Use::Truncate)
        EndHere(); // only now: as it is opened, Windows empties no hidden file
}

void File::Fail(const char* doing) const {
    ThrowLastError(doing + path);
}

std::size_t File::Read(std::span<char> room) {
    DWORD got = 0;
    if (!ReadFile(handle.get(), room.data(), static_cast<DWORD>(room.size()), &got, nullptr))
        Fail("Reading ");
    return got;
}

std::string File::Read(std::size_t most) {
    std::string bytes(most, '\0');
    bytes.resize(Read(std::span(bytes)));
    return bytes;
}

std::string File::ReadToEnd() {
    LARGE_INTEGER size;
    if (!GetFileSizeEx(handle.get(), &size))
        Fail("Reading ");
    constexpr LONGLONG step = 1 << 30;
    std::string bytes = Read(static_cast<std::size_t>(std::min(size.QuadPart, step)));
    while (static_cast<LONGLONG>(bytes.size()) < size.QuadPart) {
        const std::string more = Read(static_cast<std::size_t>(
            std::min<LONGLONG>(size.QuadPart - static_cast<LONGLONG>(bytes.size()), step)));
        if (more.empty())
            break;
        bytes += more;
    }
    return bytes;
}

void File::Write(std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD done = 0;
        const auto want = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1U << 30));
        if (!WriteFile(handle.get(), bytes.data(), want, &done, nullptr))
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

void File::EndHere() {
    if (!SetEndOfFile(handle.get()))
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

void File::AwaitTurn(bool toWrite) {
    constexpr DWORD pause = 25; // milliseconds
    constexpr int mostTries = 20;
    OVERLAPPED place{}; // far behind the end of any file, where it is in nobody's way
    place.Offset = 0xFFFFFFFE;
    place.OffsetHigh = 0x7FFFFFFF;
    const DWORD how = LOCKFILE_FAIL_IMMEDIATELY | (toWrite ? LOCKFILE_EXCLUSIVE_LOCK : 0U);
    for (int tries = 1; !LockFileEx(handle.get(), how, 0, 1, 0, &place) && tries < mostTries; ++tries) {
        if (GetLastError() != ERROR_LOCK_VIOLATION)
            return; // a file system without locks
        Sleep(pause);
    }
}

void File::FlushAndClose() {
    Flush();
    Close();
}

void File::DeleteWhenClosed() noexcept {
    FILE_DISPOSITION_INFO disposition{TRUE};
    SetFileInformationByHandle(handle.get(), FileDispositionInfo, &disposition, sizeof disposition);
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
        File file(path, File::Use::Read);
        file.AwaitTurn(false);
        return file.ReadToEnd();
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
    File file(path, File::Use::Truncate);
    file.Write(bytes);
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
