#include "Scratch.h"

#include "Program.h"

#include "common/Text.h"
#include "platform/Failure.h"
#include "platform/File.h"
#include "platform/Folder.h"
#include "platform/Workstation.h"
#include "startup/UserRecords.h"

#include <array>
#include <cstring>

namespace obrin::bench {

namespace {

// Everything in it, and the folder itself.
void RemoveFolder(const std::string& folder) {
    WIN32_FIND_DATAA entry;
    const HANDLE search = FindFirstFileA((folder + "\\*").c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE)
        return;
    do {
        const std::string name = entry.cFileName;
        const std::string path = folder + "\\" + name;
        if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
            DeleteFileA(path.c_str());
        else if (name != "." && name != "..")
            RemoveFolder(path);
    } while (FindNextFileA(search, &entry));
    FindClose(search);
    RemoveDirectoryA(folder.c_str());
}

// A BMP file of 24 bits a pixel in one colour.
std::string Picture(LONG width, LONG height) {
    const auto pixels = static_cast<DWORD>(width * height * 3); // the width is a multiple of 4: no padding
    BITMAPFILEHEADER file{};
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
    file.bfSize = file.bfOffBits + pixels;
    BITMAPINFOHEADER picture{};
    picture.biSize = sizeof picture;
    picture.biWidth = width;
    picture.biHeight = height;
    picture.biPlanes = 1;
    picture.biBitCount = 24;
    std::string bytes(file.bfSize, '\x80');
    std::memcpy(bytes.data(), &file, sizeof file);
    std::memcpy(bytes.data() + sizeof file, &picture, sizeof picture);
    return bytes;
}

void Copy(const std::string& from, const char* to) {
    if (!CopyFileA(from.c_str(), to, FALSE))
        ThrowLastError("Copying " + from);
}

} // namespace

ScratchFolder::ScratchFolder()
    : before(CurrentFolder()) {
    std::array<char, MAX_PATH> temporary;
    GetTempPathA(temporary.size(), temporary.data());
    folder = EnsureTrailingBackslash(temporary.data(), CodePageLeadByteTest()) + "ObrinBench" +
             std::to_string(GetCurrentProcessId()) + "-" + std::to_string(GetTickCount());
    if (!CreateDirectoryA(folder.c_str(), nullptr) || !SetCurrentDirectoryA(folder.c_str()))
        ThrowLastError("Making the folder " + folder);
}

ScratchFolder::~ScratchFolder() {
    SetCurrentDirectoryA(before.c_str());
    RemoveFolder(folder);
}

Installation::Installation(const std::string& host) {
    constexpr int entries = 66;
    constexpr int programs = 6;
    CreateDirectoryA("Core", nullptr);
    WriteFileBytes("FennConfig.Sys",
                   "Title Bench\r\nDrive S,C:\\OLD,X,\\\r\n\r\nBuffers 64\r\nFiles 120\r\n");
    WriteFileBytes("UserWSID.sys", UserWsidRecord(LoginName(), wsid));
    WriteFileBytes("Startup.bmp", Picture(200, 140));
    WriteFileBytes("GL.mnu", MenuFileText("General Ledger", entries, programs));
    WriteFileBytes("PR.mnu", MenuFileText("Payroll", entries, programs));
    WriteFileBytes(system, MenuFileText("Utility Billing", entries, programs));
    Copy(OwnFolder() + "ObrinMenu.exe", "ObrinMenu.exe");
    Copy(OwnFolder() + "Corvel.dll", "Corvel.dll");
    Copy(OwnFolder() + "bare.exe", "bare.exe");
    Copy(host, "Fenn.exe");
}

std::string MenuFileText(const char* title, int entries, int programs) {
    constexpr int headings = 10;
    std::string text = std::string(title) + "^\r\n";
    for (int entry = 0; entry < entries; ++entry) {
        const std::string number = std::to_string(entry);
        if (programs == 0) {
            text += "Program number " + number + "^UB\\Programs\\Prog" + number + "\r\n";
            continue;
        }
        const int inBranch = entry % (1 + headings * (1 + programs));
        const int inLeaf = (inBranch - 1) % (1 + programs);
        if (inBranch == 0)
            text += "Branch " + number;
        else if (inLeaf == 0)
            text += ">Heading " + number;
        else
            text += ">>Program number " + number + "^UB\\Programs\\Prog" + number;
        text += "\r\n";
    }
    return text;
}

} // namespace obrin::bench
