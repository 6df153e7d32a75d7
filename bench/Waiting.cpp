// Measures the wait for the host: its CPU time, and the time from the host's caption until the menu hides
// the host. Compares the time from the caption to the shown menu with a bare program that makes the same
// calls.

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
    Sleep(3000); // the rest of the start, and opening the notice "Waiting for Fenn", do not count
    const double before = menu.CpuTime();
    const double elapsed = MeasureTime([] { Sleep(10'000); }); // long, because CPU time has steps of 10 ms
    const double share = 100 * (menu.CpuTime() - before) / elapsed;
    menu.Close();
    return share;
}

// Times since the host set its caption, in milliseconds.
struct Delays {
    double untilHidden;
    double untilShown;
};

Delays StartWithLateHost(const MenuProgram& program) {
    const RunningMenu menu(program);
    menu.WaitUntilShown();
    const LONGLONG shownTime = Now();
    const HWND host = FindWindowA(hostWindowClass, nullptr);
    const LONGLONG captionTime = SendMessageA(host, askCaptionTime, 0, 0);
    const LONGLONG hidingTime = SendMessageA(host, askHidingTime, 0, 0);
    menu.Close();
    return {.untilHidden = Milliseconds(hidingTime - captionTime),
            .untilShown = Milliseconds(shownTime - captionTime)};
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
    PrintValue("from the caption to the hidden host, second longest", "ms", delays[lateStarts - 2], 35);
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
