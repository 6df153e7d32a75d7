// From the start of the process to the shown menu, and the most memory on the way, against a bare program
// that starts and awaits the same host and then shows as much (Bare.cpp). Both run in the same installation.

#include "Measurements.h"
#include "Program.h"
#include "Scratch.h"

#include "common/Lines.h"
#include "menu/frmMain.h"
#include "platform/File.h"
#include "platform/Workstation.h"
#include "startup/HostLink.h"

#include <stdexcept>

namespace obrin::bench {

namespace {

struct Start {
    double milliseconds;
    double megabytes;
};

Start StartAndEnd(const std::string& commandLine, const char* windowClass) {
    RefuseOpenHost();
    const LONGLONG start = Now();
    const Program program(commandLine);
    const HWND window = AwaitShown(windowClass);
    const LONGLONG shown = Now();

    // What it still does once the window is shown is memory too: the first painting.
    WaitForInputIdle(ProcessOf(window).get(), 2000);
    SendMessageA(window, WM_NULL, 0, 0);
    const double memory = program.PeakMemory();
    // The exit command that it types ends the host too.
    const UniqueHandle host = ProcessOf(FindWindowA(hostWindowClass, nullptr));
    PostMessageA(window, WM_CLOSE, 0, 0);
    program.AwaitEnd();
    AwaitProcessEnd(host.get());
    return {.milliseconds = 1e3 * Seconds(shown - start), .megabytes = memory / (1024 * 1024)};
}

// By Wine's own trace, which bench.sh leads into a file: each time that the launcher's thread opens, lists or
// looks for something below the installation, but for the host's program, which the shell does, the loading
// of the support library, and the one question for the folder's short name.
double CountOpens(std::string_view trace) {
    const std::size_t own = trace.find(":trace:file:CreateFileW L\"UserWSID.sys\"");
    if (own == std::string_view::npos)
        throw std::runtime_error("no trace of the launcher's files: run bench.sh");
    const std::string thread(trace.substr(trace.rfind('\n', own) + 1, 4));
    double opens = 0;
    LineReader lines(trace, LoneLf::EndsLine);
    while (const auto line = lines.Next()) {
        const auto has = [&](const char* text) { return line->find(text) != std::string_view::npos; };
        const auto calls = [&](const char* name) {
            return line->starts_with(thread + ":trace:file:" + name + " L\"");
        };
        if ((calls("CreateFileW") || calls("GetFileAttributesW") || calls("FindFirstFileExW")) &&
            (!has(":\\") || has("ObrinBench")) && !has("Fenn.exe"))
            ++opens;
    }
    return opens;
}

Row MeasureOpens() {
    const Installation installation(OwnFolder() + "Fenn.exe");
    for (int i = 3; i < 98; ++i)
        WriteFileBytes("S" + std::to_string(i) + ".mnu", "Title of a system^\r\n");
    StartAndEnd("ObrinMenu.exe", menuWindowClass); // gives the configuration its drive line
    SetEnvironmentVariableA("WINEDEBUG", "+file");
    StartAndEnd("ObrinMenu.exe", menuWindowClass);
    SetEnvironmentVariableA("WINEDEBUG", "-all");
    return Within("opens and look-ups of a start with 98 menu files", "times",
                  CountOpens(ReadFileBytes(EnvironmentVariable("OBRIN_TRACE"))), 98 + 10);
}

} // namespace

std::vector<Row> MeasureStart() {
    constexpr int runs = 15;
    const Installation installation(OwnFolder() + "Fenn.exe");
    SetEnvironmentVariableA("FENN_START_DELAY_MS", "0");

    std::vector<double> productMemory;
    std::vector<double> floorMemory;
    const Medians medians = Alternate(
        runs,
        [&] {
            const auto [milliseconds, megabytes] = StartAndEnd("ObrinMenu.exe", menuWindowClass);
            productMemory.push_back(megabytes);
            return milliseconds;
        },
        [&] {
            const auto [milliseconds, megabytes] = StartAndEnd(Installation::bare, Installation::bareClass);
            floorMemory.push_back(megabytes);
            return milliseconds;
        });
    const double product = Median(productMemory);
    const double floor = Median(floorMemory);
    return {
        WithinRatio("start to the shown menu, host there at once", "ms", medians, 1.10),
        WithinRatio("peak private memory", "MB", {product, floor, product / floor}, 1.20),
        MeasureOpens(),
    };
}

} // namespace obrin::bench
