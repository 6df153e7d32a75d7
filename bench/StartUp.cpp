// Compares a start of the menu with a start of the bare program (Bare.cpp): time and memory. Counts how
// often a start opens or looks for a file, and measures the size of the program file, because a start loads
// it from a share.

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
    PrintRatio("start to the shown menu, with a fast host", "ms",
               MeasureAlternately(
                   runs, [] { return StartTime(obrinMenu); }, [] { return StartTime(bareMenu); }),
               1.10);
}

void MeasureMemory() {
    const Installation installation(demoHost);
    constexpr int runs = 5;
    PrintRatio("peak private memory", "MB",
               MeasureAlternately(
                   runs, [] { return PeakMemory(obrinMenu); }, [] { return PeakMemory(bareMenu); }),
               1.20);
}

// Counts how often the menu's thread opens, lists or looks for files of the installation. Reads Wine's trace,
// which bench.sh writes to a file. Does not count when the shell looks for the host's program.
void MeasureOpens() {
    constexpr int menuFiles = 98;
    constexpr int otherCalls = 10;
    const Installation installation(demoHost); // with three menu files
    for (int i = 3; i < menuFiles; ++i)
        WriteFileBytes("S" + std::to_string(i) + ".mnu", "Title of a system^\r\n");
    StartTime(obrinMenu); // rewrites the host's configuration, which the next start finds correct
    SetEnvironmentVariableA("WINEDEBUG", "+file");
    StartTime(obrinMenu);
    SetEnvironmentVariableA("WINEDEBUG", "-all");

    const std::regex call(
        R"((\w+):trace:file:(?:CreateFileW|GetFileAttributesW|FindFirstFileExW) L"([^"]*))");
    const std::string folder = std::filesystem::current_path().filename().string() + R"(\\)";
    std::map<std::string, int> calls; // by thread
    std::string menuThread;
    std::ifstream trace(EnvironmentVariable("OBRIN_TRACE"));
    for (std::string line; std::getline(trace, line);) {
        std::smatch parts;
        if (!std::regex_search(line, parts, call))
            continue;
        const std::string thread = parts[1];
        const std::string name = parts[2]; // the trace doubles each backslash
        const bool isRelative = name.find(':') == std::string::npos;
        if ((isRelative || name.find(folder) != std::string::npos) && !name.ends_with("Fenn.exe"))
            ++calls[thread];
        if (name == "UserWSID.sys") // the host does not open it
            menuThread = thread;
    }
    if (menuThread.empty())
        throw std::runtime_error("the trace of the menu's files is missing: run bench.sh");
    PrintValue("opens and look-ups of a start with 98 menu files", "times", calls[menuThread],
               menuFiles + otherCalls);
}

void MeasureSize() {
    const auto bytes = static_cast<double>(std::filesystem::file_size(OwnFolder() + "ObrinMenu.exe"));
    PrintValue("size of ObrinMenu.exe", "KB", bytes / 1024, 400);
}

} // namespace obrin::bench
