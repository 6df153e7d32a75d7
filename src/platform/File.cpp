#include "platform/File.h"

#include "common/Lines.h"
#include "platform/Failure.h"
#include "platform/Workstation.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace obrin {

namespace {

// As much as a first line takes in practice; more is read only for longer ones.
constexpr std::size_t firstLineBytes = 4096;

HANDLE Open(const std::string& path, File::Use use) {
    struct Mode {
        DWORD access, disposition;
    };
    constexpr std::array<Mode, 3> modes{{
        {GENERIC_READ, OPEN_EXISTING},
        {GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS},
        {GENERIC_WRITE, CREATE_ALWAYS},
    }};
    const auto [access, disposition] = modes[static_cast<std::size_t>(use)];
    const HANDLE handle =
        CreateFileA(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        ThrowLastError("Opening " + path);
    return handle;
}

// An empty file with a name of its own in the folder of `path`: other workstations save at the same moment.
std::string CreateFileBeside(const std::string& path) {
    const auto nameStart = FindLastCharacter(path, '\\', CodePageLeadByteTest()) + 1;
    const std::string folder = nameStart == 0 ? "." : path.substr(0, nameStart);
    std::array<char, MAX_PATH> name;
    if (GetTempFileNameA(folder.c_str(), "Obr", 0, name.data()) == 0)
        ThrowLastError("Writing " + path);
    return name.data();
}

// Who may do what with a file; as much of it as the file system lets a user see and set.
void CopyRights(const std::string& from, const std::string& to) {
    DWORD size = 0;
    GetFileSecurityA(from.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<std::byte> rights(size);
    if (!GetFileSecurityA(from.c_str(), DACL_SECURITY_INFORMATION, rights.data(), size, &size))
        return;
    // What the file inherits from its folder stays inherited.
    auto* description = reinterpret_cast<SECURITY_DESCRIPTOR_RELATIVE*>(rights.data());
    if ((description->Control & SE_DACL_AUTO_INHERITED) != 0)
        description->Control |= SE_DACL_AUTO_INHERIT_REQ;
    SetFileSecurityA(to.c_str(), DACL_SECURITY_INFORMATION, rights.data());
}

// Another workstation may be reading the file at this instant, which refuses its replacement.
bool MoveWithPatience(const std::string& from, const std::string& to) {
    constexpr int tries = 20;
    constexpr DWORD pause = 25; // milliseconds
    for (int i = 1;; ++i) {
        if (MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return true;
        const DWORD error = GetLastError();
        if ((error != ERROR_SHARING_VIOLATION && error != ERROR_ACCESS_DENIED) || i == tries)
            return false;
        Sleep(pause);
    }
}

} // namespace

File::File(const std::string& filePath, Use use)
    : path(filePath)
    , handle(Open(filePath, use)) {}

void File::Fail(const char* doing) const {
    ThrowLastError(doing + path);
}

std::string File::Read(std::size_t most) {
    std::string bytes(most, '\0');
    DWORD got = 0;
    if (!ReadFile(handle.get(), bytes.data(), static_cast<DWORD>(most), &got, nullptr))
        Fail("Reading ");
    bytes.resize(got);
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

void File::FlushAndClose() {
    if (!FlushFileBuffers(handle.get())) {
        // Some shares cannot be asked to; what they were given has been accepted.
        const DWORD error = GetLastError();
        if (error != ERROR_INVALID_FUNCTION && error != ERROR_NOT_SUPPORTED)
            Fail("Writing ");
    }
    Close();
}

void File::Close() {
    if (!CloseHandle(handle.release()))
        Fail("Writing ");
}

std::string ReadFileBytes(const std::string& path) {
    return File(path, File::Use::Read).ReadToEnd();
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

void ReplaceFileBytes(const std::string& path, std::string_view bytes) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
    if (exists && (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0)
        throw RunTimeError(ERROR_ACCESS_DENIED, "Writing " + path);
    const std::string beside = CreateFileBeside(path);
    try {
        File file(beside, File::Use::Truncate);
        file.Write(bytes);
        file.FlushAndClose();
        if (exists) {
            CopyRights(path, beside);
            SetFileAttributesA(beside.c_str(), attributes);
        }
        if (!MoveWithPatience(beside, path))
            ThrowLastError("Writing " + path);
    } catch (const RunTimeError& error) {
        DeleteFileA(beside.c_str());
        throw RunTimeError(error.Code(), "Writing " + path); // the file that the user knows
    }
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
