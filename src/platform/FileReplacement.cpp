#include "platform/FileReplacement.h"

#include "platform/Failure.h"
#include "platform/File.h"

#include <cstddef>
#include <vector>

namespace obrin {

namespace {

// Nothing when the file cannot be read.
std::optional<std::string> PresentBytes(const std::string& path) {
    try {
        return ReadFileIfThere(path);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

// With a name of its own that tells what it is: other workstations save at the same moment.
File NewFileBeside(const std::string& path) {
    for (DWORD number = GetTickCount();; ++number) {
        try {
            return File(path + "." + std::to_string(number) + ".tmp", File::Use::New);
        } catch (const RunTimeError& error) {
            if (error.Code() != ERROR_FILE_EXISTS)
                throw;
        }
    }
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

// The new contents beside the file that they are for. They go with this object unless they are needed.
class Spare {
public:
    Spare(const std::string& path, std::string_view newBytes)
        : target(path)
        , bytes(newBytes)
        , file(NewFileBeside(path)) {}
    Spare(const Spare&) = delete;
    Spare& operator=(const Spare&) = delete;
    ~Spare() {
        // Through the handle: the rights that the file has by now may not let its users delete it.
        if (!needed)
            file.DeleteWhenClosed();
    }

    void Fill() {
        file.Write(bytes);
        file.Flush();
    }

    void LookLikeTarget(DWORD attributes) {
        SetFileAttributesA(file.Path().c_str(), attributes);
        CopyRights(target, file.Path());
    }

    // Takes the file's place; false with the last error when that is refused.
    bool Move() {
        needed = MoveFileExA(file.Path().c_str(), target.c_str(),
                             MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
        return needed;
    }

    // Writes the file in place. Throws RunTimeError, before IsNeeded with the file untouched.
    void Copy() {
        File inPlace(target, File::Use::InPlace);
        inPlace.AwaitTurn(true);
        needed = true;
        inPlace.Write(bytes);
        inPlace.EndHere();
        inPlace.FlushAndClose();
        needed = false;
    }

    bool IsNeeded() const { return needed; }
    void Drop() { needed = false; }
    const std::string& Path() const { return file.Path(); }

private:
    const std::string& target;
    std::string_view bytes;
    File file;
    bool needed = false; // the target holds neither the old nor the new contents, or is this file
};

// Another menu that reads the file at this instant refuses the move, and could read half of what is written
// in place. It is done within milliseconds; who is not keeps the file open all day, and is not waited for. A
// file that cannot be written either is worth half a second: whoever looks through new files lets go of them
// soon.
void PutInPlace(Spare& spare) {
    constexpr DWORD pause = 25; // milliseconds
    constexpr int movesAlone = 3;
    constexpr int mostTries = 20;
    for (int tries = 1; !spare.Move(); ++tries) {
        // Whatever the reason: not every file system has the same one.
        const DWORD refusal = GetLastError();
        try {
            if (tries > movesAlone) {
                spare.Copy();
                return;
            }
        } catch (const RunTimeError& error) {
            if (spare.IsNeeded())
                throw;
            if (tries == mostTries)
                throw RunTimeError(error.Code() == ERROR_FILE_NOT_FOUND ? refusal : error.Code(), "");
        }
        Sleep(pause);
    }
}

} // namespace

void ReplaceFileBytes(const std::string& path, std::string_view bytes, std::optional<std::string> present) {
    if (present == bytes)
        return;
    const DWORD attributes = GetFileAttributesA(path.c_str());
    const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
    if (exists && !present && (present = PresentBytes(path)) == bytes)
        return;
    std::string doing = "Writing " + path; // the file that the user knows
    if (exists && (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0)
        throw RunTimeError(ERROR_ACCESS_DENIED, doing);
    std::optional<Spare> spare;
    try {
        spare.emplace(path, bytes);
        spare->Fill();
        if (exists)
            spare->LookLikeTarget(attributes);
        PutInPlace(*spare);
    } catch (const RunTimeError& error) {
        if (spare && spare->IsNeeded()) {
            if (present && PresentBytes(path) == present)
                spare->Drop(); // refused before the first byte, as by a lock on a part of the file
            else
                doing += "\r\nIts new contents are complete in " + spare->Path();
        }
        throw RunTimeError(error.Code(), doing);
    }
}

} // namespace obrin
