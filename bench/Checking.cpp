// Checking an installation with 98 menu files of 20 MB, two at a time, against reading one after the other
// into the same memory. The files have few entries with long texts: measured is the walk through their bytes.
// An entry takes a quarter of a microsecond beside that, which many of them make felt.

#include "Clock.h"
#include "Measurements.h"
#include "Scratch.h"

#include "checker/InstallationCheck.h"
#include "platform/File.h"

#include <algorithm>
#include <stdexcept>

namespace obrin::bench {

namespace {

constexpr std::size_t fileCount = 98;
constexpr std::size_t fileSize = std::size_t{20} * 1024 * 1024;
constexpr std::size_t entries = 400;

std::string NameOf(std::size_t file) {
    return "S" + std::to_string(file) + ".mnu";
}

std::string LargeMenuFile() {
    const std::string program = std::string(fileSize / entries - 25, 'x') + "^UB\\Programs\\Prog";
    std::string text = "Title of a system";
    for (std::size_t entry = 0; entry < entries; ++entry)
        text += "\r\n" + program + std::to_string(entry);
    text.resize(fileSize, 'x'); // a longer last key
    return text;
}

double CheckByProduct() {
    const std::vector<std::string> currentFolder(1);
    CheckProgress progress;
    CheckResult result;
    const double seconds = Timed([&] { result = CheckPaths(currentFolder, false, progress); });
    const auto isOfContents = [](const Finding& finding) { return finding.line != 0; };
    if (result.menuFiles != fileCount || std::ranges::any_of(result.findings, isOfContents))
        throw std::runtime_error("the check is not what was expected");
    return seconds * 1e3;
}

double ReadByBareCalls() {
    const double seconds = Timed([] {
        std::string buffer(fileSize, '\0');
        for (std::size_t i = 0; i < fileCount; ++i) {
            const HANDLE file = CreateFileA(NameOf(i).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
            DWORD got = 0;
            if (!ReadFile(file, buffer.data(), fileSize, &got, nullptr) || got != fileSize)
                throw std::runtime_error("a menu file is not as it was written");
            CloseHandle(file);
        }
    });
    return seconds * 1e3;
}

} // namespace

std::vector<Row> MeasureChecking() {
    constexpr int runs = 9;
    const ScratchFolder folder;
    const std::string text = LargeMenuFile();
    for (std::size_t i = 0; i < fileCount; ++i)
        WriteFileBytes(NameOf(i), text);
    const Medians medians = Alternate(runs, CheckByProduct, ReadByBareCalls);
    return {WithinRatio("checking 98 menu files of 20 MB; floor: reading", "ms", medians, 1.25)};
}

} // namespace obrin::bench
