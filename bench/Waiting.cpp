// The wait for the host's windows: the time that it takes from the machine, and how late it sees what it
// waits for.

#include "Measurements.h"
#include "Program.h"
#include "Roles.h"
#include "Scratch.h"

#include "menu/frmMain.h"
#include "platform/Workstation.h"
#include "startup/HostLink.h"

#include <algorithm>

namespace obrin::bench {

namespace {

// Per cent of a core while the host's window is there and never gets its caption.
double WaitingShare(const std::string& commandLine, const char* windowClass) {
    constexpr DWORD watched = 10'000; // milliseconds; the machine counts a process's time in steps of 10
    RefuseOpenHost();
    const Program program(commandLine);
    HWND host = nullptr;
    Await("the host's window", [&] { return (host = FindWindowA(hostWindowClass, nullptr)) != nullptr; });
    Sleep(3000); // what the start itself still does, and the notice's opening, is no waiting

    const double before = program.CpuTime();
    const double seconds = Timed([] { Sleep(watched); });
    const double share = 100 * (program.CpuTime() - before) / seconds;

    PostMessageA(FindWindowA(windowClass, nullptr), WM_CLOSE, 0, 0);
    program.AwaitEnd();
    EndHost(host);
    return share;
}

Row MeasureShare() {
    constexpr int runs = 3;
    const Installation installation(OwnFolder() + "Fenn.exe");
    SetEnvironmentVariableA("FENN_NEVER", "caption");
    const Medians medians = Alternate(
        runs, [] { return WaitingShare("ObrinMenu.exe", menuWindowClass); },
        [] { return WaitingShare(Installation::bare, Installation::bareClass); });
    SetEnvironmentVariableA("FENN_NEVER", nullptr);
    return Within("waiting for the host, of a core", "%", medians, 1);
}

struct Delays {
    double hiding, menu; ///< from the host's caption to its being hidden and to the shown menu, milliseconds
};

Delays StartBesideLateHost(const std::string& commandLine, const char* windowClass) {
    RefuseOpenHost();
    const Program program(commandLine);
    const HWND menu = AwaitShown(windowClass);
    const LONGLONG shown = Now();
    const HWND host = FindWindowA(hostWindowClass, nullptr);
    const LONGLONG caption = SendMessageA(host, askCaptionTime, 0, 0);
    const LONGLONG hidden = SendMessageA(host, askHidingTime, 0, 0);
    PostMessageA(menu, WM_CLOSE, 0, 0);
    program.AwaitEnd();
    EndHost(host);
    return {.hiding = 1e3 * Seconds(hidden - caption), .menu = 1e3 * Seconds(shown - caption)};
}

// In these starts the host is this program, which sets its caption at a known moment.
std::vector<Row> MeasureDelay() {
    constexpr int runs = 21;
    const Installation installation(OwnFile());
    std::vector<double> hidings;
    const Medians menus = Alternate(
        runs,
        [&] {
            const auto [hiding, menu] = StartBesideLateHost("ObrinMenu.exe", menuWindowClass);
            hidings.push_back(hiding);
            return menu;
        },
        [] { return StartBesideLateHost(Installation::bareWithAll, Installation::bareClass).menu; });
    constexpr double target = 15;
    // A machine that has other work is late by itself now and then, so one may be.
    std::ranges::sort(hidings);
    return {
        Within("from the host's caption to its hiding, median", "ms", Median(hidings), target),
        Within("from the host's caption to its hiding, longest but one", "ms", hidings[runs - 2], target),
        WithinRatio("from the host's caption to the shown menu", "ms", menus, 1.25),
    };
}

} // namespace

std::vector<Row> MeasureWaiting() {
    std::vector<Row> rows{MeasureShare()};
    for (Row& row : MeasureDelay())
        rows.push_back(std::move(row));
    return rows;
}

} // namespace obrin::bench
