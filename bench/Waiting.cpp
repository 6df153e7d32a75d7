// The wait for the host's windows: the time that it takes from the machine, and how late it sees what it
// waits for.

#include "Measurements.h"
#include "Program.h"
#include "Roles.h"
#include "Scratch.h"

#include "startup/HostLink.h"

#include <algorithm>

namespace obrin::bench {

namespace {

// Per cent of a core while the host's window is there and never gets its caption.
double WaitingShare(const std::string& commandLine, const char* windowClass) {
    constexpr DWORD watched = 6000; // milliseconds; the machine counts a process's time in steps of 10
    RefuseOpenHost();
    const Program program(commandLine);
    HWND host = nullptr;
    Await("the host's window", [&] { return (host = FindWindowA(hostWindowClass, nullptr)) != nullptr; });
    Sleep(300); // what the start itself still does is no waiting

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
        runs, [] { return WaitingShare("ObrinMenu.exe", "ObrinMenu.frmMain"); },
        [] { return WaitingShare(std::string("bare.exe ") + Installation::system, "ObrinBench.Bare"); });
    SetEnvironmentVariableA("FENN_NEVER", nullptr);
    return Within("waiting for the host, of a core", "%", medians, 1);
}

// In these starts the host is this program, which sets its caption at a known moment.
std::vector<Row> MeasureDelay() {
    constexpr int runs = 21;
    const Installation installation(OwnFile());
    std::vector<double> delays;
    for (int run = 0; run < runs; ++run) {
        RefuseOpenHost();
        const Program program("ObrinMenu.exe");
        const HWND menu = AwaitShown("ObrinMenu.frmMain");
        const HWND host = FindWindowA(hostWindowClass, nullptr);
        delays.push_back(static_cast<double>(SendMessageA(host, askHidingDelay, 0, 0)) / 1e3);
        PostMessageA(menu, WM_CLOSE, 0, 0);
        program.AwaitEnd();
        EndHost(host);
    }
    constexpr double target = 15;
    return {
        Within("from the host's caption to its hiding, median of 21", "ms", Median(delays), target),
        Within("from the host's caption to its hiding, longest", "ms", *std::ranges::max_element(delays),
               target),
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
