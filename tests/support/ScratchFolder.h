// An empty folder that is the current directory as long as the object lives.
#pragma once

#include "common/RunTimeError.h"
#include "platform/File.h"
#include "platform/Folder.h"
#include "platform/WindowsApi.h"

#include <filesystem>
#include <string>

namespace obrin::test {

class ScratchFolder {
public:
    ScratchFolder()
        : before(std::filesystem::current_path()) {
        // Always a new folder. One with this process ID may be left over: IDs are reused, and a folder is not
        // removed while a program in it is still ending.
        do {
            path = std::filesystem::temp_directory_path() /
                   ("obrin-test-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++number));
        } while (!std::filesystem::create_directory(path));
        std::filesystem::current_path(path);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder() {
        std::filesystem::current_path(before);
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }

    std::filesystem::path path;

private:
    int number = 0;
    std::filesystem::path before;
};

/// The bytes of a BMP file with 24 bits a pixel, whose pixels are white and black in turn. The width must be
/// a multiple of 4.
inline std::string Bmp(int width, int height) {
    const BITMAPINFOHEADER info{sizeof info, width, height, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
    const std::string head("BM\0\0\0\0\0\0\0\0\x36\0\0\0", 14);
    std::string file = head + std::string(reinterpret_cast<const char*>(&info), sizeof info);
    for (int pixel = 0; pixel < width * height; ++pixel)
        file.append(3, pixel % 2 == 0 ? '\xFF' : '\0');
    return file;
}

} // namespace obrin::test
