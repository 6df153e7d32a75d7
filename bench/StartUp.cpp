// Starts of the menu, beside starts of a bare program that awaits the same host and shows the same tree
// (Bare.cpp): the time to the shown menu, the memory, and the files that are opened. The size of the image is
// here too, because a start loads it from a share.

#include "Installation.h"
#include "Measurements.h"
#include "Table.h"

#include "platform/File.h"
#include "platform/Workstation.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <stdexcept>

namespace obrin::bench {

namespace {

double StartTime(const MenuProgram& program) {
    const LONGLONG start = Now();
    const RunningMenu menu(program);
    menu.WaitUntilShown();
    const double time = Milliseconds(Now() - start);
    menu.Close();
    return time;
}

double PeakMemory(const MenuProgram& program) {
    const RunningMenu menu(program);
    menu.WaitUntilShown();
    const double memory = menu.PeakMemory();
    menu.Close();
    return memory;
}

} // namespace

void MeasureStart() {
    const Installation installation(demoHost);
    constexpr int runs = 25;
    PrintRatio("start to the shown menu, host there at once", "ms",
               MeasureAlternately(
                   runs, [] { return StartTime(product); }, [] { return StartTime(bare); }),
               1.10);
}

void MeasureMemory() {
    const Installation installation(demoHost);
    constexpr int runs = 5;
    PrintRatio("peak private memory", "MB",
               MeasureAlternately(
                   runs, [] { return PeakMemory(product); }, [] { return PeakMemory(bare); }),
               1.20);
}

// Counts in Wine's own trace, which bench.sh leads into a file: each time that the menu's thread opens, lists
// or looks for something in the installation. The shell's look for the host's program does not count.
void MeasureOpens() {
    constexpr int menuFiles = 98;
    constexpr int others = 10;
    const Installation installation(demoHost); // with three menu files
    for (int i = 3; i < menuFiles; ++i)
        WriteFileBytes("S" + std::to_string(i) + ".mnu", "Title of a system^\r\n");
    StartTime(product); // corrects the host's configuration
    SetEnvironmentVariableA("WINEDEBUG", "+file");
    StartTime(product);
    SetEnvironmentVariableA("WINEDEBUG", "-all");

    const std::regex look(
        R"((\w+):trace:file:(?:CreateFileW|GetFileAttributesW|FindFirstFileExW) L"([^"]*))");
    const std::string folder = std::filesystem::current_path().filename().string() + R"(\\)";
    std::map<std::string, int> looks; // by thread
    std::string menuThread;
    std::ifstream trace(EnvironmentVariable("OBRIN_TRACE"));
    for (std::string line; std::getline(trace, line);) {
        std::smatch parts;
        if (!std::regex_search(line, parts, look))
            continue;
        const std::string thread = parts[1];
        const std::string name = parts[2]; // with two backslashes for each
        const bool isRelative = name.find(':') == std::string::npos;
        if ((isRelative || name.find(folder) != std::string::npos) && !name.ends_with("Fenn.exe"))
            ++looks[thread];
        if (name == "UserWSID.sys")
            menuThread = thread;
    }
    if (menuThread.empty())
        throw std::runtime_error("no trace of the menu's files: run bench.sh");
    PrintValue("opens and look-ups of a start with 98 menu files", "times", looks[menuThread],
               menuFiles + others);
}

void MeasureSize() {
    const auto bytes = static_cast<double>(std::filesystem::file_size(OwnFolder() + "ObrinMenu.exe"));
    PrintValue("size of ObrinMenu.exe", "KB", bytes / 1024, 400);
}

} // namespace obrin::bench
