// From the start of the process to the shown menu, and the most memory on the way, against a bare program
// that starts and awaits the same host and then shows as much (Bare.cpp). Both run in the same installation.

#include "Measurements.h"
#include "Program.h"
#include "Scratch.h"

#include "menu/frmMain.h"
#include "startup/HostLink.h"

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
    const UniqueFile host = ProcessOf(FindWindowA(hostWindowClass, nullptr));
    PostMessageA(window, WM_CLOSE, 0, 0);
    program.AwaitEnd();
    AwaitProcessEnd(host.get());
    return {.milliseconds = 1e3 * Seconds(shown - start), .megabytes = memory / (1024 * 1024)};
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
    };
}

} // namespace obrin::bench
