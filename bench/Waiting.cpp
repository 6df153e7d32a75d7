// Measures the wait for the host: its CPU time and how late it notices the host's caption. Compares the time
// from the caption to the shown menu with a bare program that makes the same calls.

#include "Installation.h"
#include "LateHost.h"
#include "Measurements.h"
#include "Table.h"

#include "startup/HostLink.h"

#include <algorithm>

namespace obrin::bench {

namespace {

// Returns the CPU time of the wait in per cent of one core, for a host that never sets its caption.
double WaitingShare() {
    const RunningMenu menu(obrinMenu);
    WaitFor("the host's window", [] { return FindWindowA(hostWindowClass, nullptr) != nullptr; });
    Sleep(3000); // the rest of the start and the opening of the notice do not count
    const double before = menu.CpuTime();
    const double watched = MeasureTime([] { Sleep(10'000); }); // long, because CPU time has steps of 10 ms
    const double share = 100 * (menu.CpuTime() - before) / watched;
    menu.Close();
    return share;
}

// Times since the host has set its caption, in milliseconds.
struct Delays {
    double untilHidden;
    double untilShown;
};

Delays StartWithLateHost(const MenuProgram& program) {
    const RunningMenu menu(program);
    menu.WaitUntilShown();
    const LONGLONG shown = Now();
    const HWND host = FindWindowA(hostWindowClass, nullptr);
    const LONGLONG caption = SendMessageA(host, askCaptionTime, 0, 0);
    const LONGLONG hidden = SendMessageA(host, askHidingTime, 0, 0);
    menu.Close();
    return {.untilHidden = Milliseconds(hidden - caption), .untilShown = Milliseconds(shown - caption)};
}

constexpr int lateStarts = 21;

} // namespace

void MeasureWait() {
    std::vector<double> shares(3);
    {
        const Installation installation(demoHost);
        SetEnvironmentVariableA("FENN_NEVER", "caption");
        std::ranges::generate(shares, WaitingShare);
        SetEnvironmentVariableA("FENN_NEVER", nullptr);
    }
    PrintValue("waiting for the host, share of a core, median", "%", Median(shares), 6);

    const Installation installation(lateHost);
    std::vector<double> delays(lateStarts);
    std::ranges::generate(delays, [] { return StartWithLateHost(obrinMenu).untilHidden; });
    std::ranges::sort(delays);
    // Ignores the longest, because other work of the machine sometimes delays a start.
    PrintValue("from the host's caption to its hiding, second longest", "ms", delays[lateStarts - 2], 35);
}

void MeasureCaption() {
    const Installation installation(lateHost);
    PrintRatio("from the host's caption to the shown menu", "ms",
               MeasureAlternately(
                   lateStarts, [] { return StartWithLateHost(obrinMenu).untilShown; },
                   [] { return StartWithLateHost(bareMenuWithAllCalls).untilShown; }),
               1.25);
}

} // namespace obrin::bench
