#include "platform/Events.h"

namespace obrin {

void ProcessPendingEvents() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam)); // it is for the loop outside
            return;
        }
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

int RunEvents(HWND window) {
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (IsDialogMessageA(window, &message))
            continue;
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return static_cast<int>(message.wParam);
}

namespace {
constexpr DWORD highResolution = 2; // CREATE_WAITABLE_TIMER_HIGH_RESOLUTION, which MinGW's headers lack
} // namespace

EventPause::EventPause()
    : timer(CreateWaitableTimerExW(nullptr, nullptr, highResolution, TIMER_ALL_ACCESS)) {}

void EventPause::Sleep() const {
    constexpr DWORD longest = 12; // milliseconds
    // A plain time-out ends with a tick of the clock, up to 16 ms later than asked for.
    LARGE_INTEGER due;
    due.QuadPart = -10'000LL * longest; // in units of 100 ns, from now
    const HANDLE handle = timer.get();
    const bool timed = handle != nullptr && SetWaitableTimer(handle, &due, 0, nullptr, nullptr, FALSE);
    MsgWaitForMultipleObjectsEx(timed ? 1 : 0, &handle, timed ? 2 * longest : longest, QS_ALLINPUT,
                                MWMO_INPUTAVAILABLE);
}

} // namespace obrin
