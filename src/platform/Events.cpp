#include "platform/Events.h"

#include "platform/Failure.h"
#include "platform/Handle.h"

namespace obrin {

namespace {

constexpr DWORD highResolution = 2; // CREATE_WAITABLE_TIMER_HIGH_RESOLUTION, which MinGW's headers lack
constexpr LONG pause = 13;          // milliseconds: short enough not to be noticed, and no load for a core

// The keyboard moves between the controls of the window that has it, dialog or not.
void Dispatch(MSG& message) {
    if (IsDialogMessageA(GetAncestor(message.hwnd, GA_ROOT), &message))
        return;
    TranslateMessage(&message);
    DispatchMessageA(&message);
}

// Signalled once a pause.
UniqueHandle StartPauses() {
    UniqueHandle timer(CreateWaitableTimerExW(nullptr, nullptr, highResolution, TIMER_ALL_ACCESS));
    if (!timer) // an older Windows, whose timers end with a tick of the clock, up to 16 ms late
        timer.reset(CreateWaitableTimerExW(nullptr, nullptr, 0, TIMER_ALL_ACCESS));
    LARGE_INTEGER first;
    first.QuadPart = -10'000LL * pause; // in units of 100 ns, from now
    if (!timer || !SetWaitableTimer(timer.get(), &first, pause, nullptr, nullptr, FALSE))
        ThrowLastError("Starting the timer that the wait for the host goes by");
    return timer;
}

// Processes events until `signal`, if there is one, is signalled. Returns false when `window` was closed
// or the program ended first.
bool ProcessEventsUntil(HWND window, HANDLE signal) {
    const DWORD signals = signal != nullptr ? 1 : 0;
    while (IsWindow(window)) {
        const DWORD woken =
            MsgWaitForMultipleObjectsEx(signals, &signal, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
        if (woken == WAIT_FAILED)
            ThrowLastError("Waiting for the host or an event of the menu window");
        if (woken < signals)
            return true;
        if (!ProcessPendingEvents())
            return false;
    }
    return false;
}

} // namespace

bool ProcessPendingEvents() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam)); // it is for the loop outside
            return false;
        }
        Dispatch(message);
    }
    return true;
}

int RunEvents() noexcept {
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        Dispatch(message);
    return static_cast<int>(message.wParam);
}

// Events are processed only when they wake it, and only every second pause is one that they can end: to look
// for them after each try, or to wait for them as well, costs the machine more than the try.
bool WaitUntil(HWND window, const std::function<bool()>& condition) {
    const UniqueHandle pauses = StartPauses();
    // The window may be closed already, by the events of what the caller did before.
    for (int tries = 1; IsWindow(window); ++tries) {
        if (condition())
            return true;
        // Now and then in any case: where a try takes longer than a pause, the next one is always due.
        constexpr int often = 128;
        if (tries % often == 0 && !ProcessPendingEvents())
            return false;
        if (tries % 2 != 0)
            WaitForSingleObject(pauses.get(), INFINITE);
        else if (!ProcessEventsUntil(window, pauses.get()))
            return false;
    }
    return false;
}

void WaitUntilClosed(HWND window) {
    ProcessEventsUntil(window, nullptr);
}

} // namespace obrin
