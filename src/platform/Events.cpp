#include "platform/Events.h"

#include "platform/Failure.h"
#include "platform/Handle.h"

#include <array>

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
constexpr LONG pause = 13;          // milliseconds: short enough not to be noticed, and no load for a core

// Tries in a thread of its own, so that the window's thread sleeps until it has an event: to look for events
// after each try costs the machine more than the try.
class Tries {
public:
    explicit Tries(const std::function<bool()>& condition);
    Tries(const Tries&) = delete;
    Tries& operator=(const Tries&) = delete;
    ~Tries();

    /// Signalled once the condition holds.
    HANDLE Success() const { return thread.get(); }

private:
    static DWORD WINAPI Run(void* self);
    /// Returns false when there is to be no other try.
    bool Pause() const;

    const std::function<bool()>& condition;
    UniqueFile timer; // none on a Windows that has none finer than its clock's ticks
    UniqueFile stop, thread;
};

Tries::Tries(const std::function<bool()>& tried)
    : condition(tried)
    , timer(CreateWaitableTimerExW(nullptr, nullptr, highResolution, TIMER_ALL_ACCESS)) {
    LARGE_INTEGER first;
    first.QuadPart = -10'000LL * pause; // in units of 100 ns, from now
    if (timer && !SetWaitableTimer(timer.get(), &first, pause, nullptr, nullptr, FALSE))
        timer.reset();
    stop.reset(CreateEventA(nullptr, TRUE, FALSE, nullptr));
    if (stop)
        thread.reset(CreateThread(nullptr, 0, Run, this, 0, nullptr));
    if (!thread)
        ThrowLastError("Waiting");
}

Tries::~Tries() {
    SetEvent(stop.get());
    // The last try may be asking a window of this thread for its caption: that much is still answered.
    const HANDLE ended = thread.get();
    MSG message;
    while (MsgWaitForMultipleObjectsEx(1, &ended, INFINITE, QS_SENDMESSAGE, MWMO_INPUTAVAILABLE) ==
           WAIT_OBJECT_0 + 1)
        PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
}

DWORD WINAPI Tries::Run(void* self) {
    const auto& tries = *static_cast<const Tries*>(self);
    while (!tries.condition() && tries.Pause()) {
    }
    return 0;
}

bool Tries::Pause() const {
    const std::array<HANDLE, 2> handles{stop.get(), timer.get()};
    // A plain time-out ends with a tick of the clock, up to 16 ms later than asked for.
    return WaitForMultipleObjects(timer ? 2 : 1, handles.data(), FALSE, timer ? INFINITE : pause) !=
           WAIT_OBJECT_0;
}

// Processes events until `success`, if there is one, is signalled. Returns false when `window` was closed
// first.
bool ProcessEventsUntil(HWND window, HANDLE success) {
    const DWORD handles = success != nullptr ? 1 : 0;
    while (IsWindow(window)) {
        const DWORD woken =
            MsgWaitForMultipleObjectsEx(handles, &success, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
        if (woken == WAIT_FAILED)
            ThrowLastError("Waiting");
        if (woken < handles)
            return true;
        ProcessPendingEvents();
    }
    return false;
}

} // namespace

bool WaitUntil(HWND window, const std::function<bool()>& condition) {
    const Tries tries(condition);
    return ProcessEventsUntil(window, tries.Success());
}

void WaitUntilClosed(HWND window) {
    ProcessEventsUntil(window, nullptr);
}

} // namespace obrin
