// Listing 98 menu files, against opening each, reading its first 4 KB and closing it; and large files against
// small ones.

#include "Clock.h"
#include "Measurements.h"
#include "Scratch.h"

#include "menu/MenuFiles.h"
#include "platform/File.h"

#include <array>
#include <filesystem>
#include <stdexcept>

namespace obrin::bench {

namespace {

constexpr int fileCount = 98;
constexpr std::uintmax_t smallSize = 1024;
constexpr std::uintmax_t largeSize = std::uintmax_t{20} * 1024 * 1024;

// Of real entries as far as anybody reads; the rest of a large one takes no place on disks that can do so.
void MakeMenuFiles(const std::string& folder, std::uintmax_t size) {
    std::filesystem::create_directory(folder);
    for (int i = 0; i < fileCount; ++i) {
        const std::string name = folder + "\\S" + std::to_string(i) + ".mnu";
        WriteFileBytes(name, MenuFileText("Title of a system", 400, 6));
        std::filesystem::resize_file(name, size);
    }
}

double ListByProduct() {
    std::size_t found = 0;
    const double seconds = Timed([&] { found = EnumerateMenuFiles().size(); });
    if (found != fileCount)
        throw std::runtime_error("the listing is not complete");
    return seconds * 1e3;
}

double ListByBareCalls() {
    int found = 0;
    const double seconds = Timed([&] {
        WIN32_FIND_DATAA entry;
        const HANDLE search = FindFirstFileA("*", &entry);
        do {
            if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
                continue;
            const HANDLE file = CreateFileA(entry.cFileName, GENERIC_READ, FILE_SHARE_READ, nullptr,
                                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
            std::array<char, 4096> start;
            DWORD got = 0;
            if (ReadFile(file, start.data(), start.size(), &got, nullptr) && got > 0)
                ++found;
            CloseHandle(file);
        } while (FindNextFileA(search, &entry));
        FindClose(search);
    });
    if (found != fileCount)
        throw std::runtime_error("the bare listing is not complete");
    return seconds * 1e3;
}

} // namespace

std::vector<Row> MeasureListing() {
    constexpr int runs = 121;
    const ScratchFolder folder;
    MakeMenuFiles("small", smallSize);
    MakeMenuFiles("large", largeSize);
    const auto inFolder = [](const char* name, auto&& work) {
        SetCurrentDirectoryA(name);
        const auto result = work();
        SetCurrentDirectoryA("..");
        return result;
    };
    const auto listSmall = [&] { return inFolder("small", ListByProduct); };
    const auto listLarge = [&] { return inFolder("large", ListByProduct); };
    const Medians small = Alternate(runs, listSmall, [&] { return inFolder("small", ListByBareCalls); });
    const Medians large = Alternate(runs, listLarge, [&] { return inFolder("large", ListByBareCalls); });
    const Medians sizes = Alternate(runs, listLarge, listSmall);
    return {
        WithinRatio("listing 98 menu files of 1 KB", "ms", small, 1.10),
        WithinRatio("listing 98 menu files of 20 MB", "ms", large, 1.10),
        WithinRatio("listing 98 files of 20 MB; floor: of 1 KB", "ms", sizes, 1.05),
    };
}

} // namespace obrin::bench
