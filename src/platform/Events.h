// Window events while a handler of ours is at work.
#pragma once

#include "platform/WindowsApi.h"

namespace obrin {

/// Processes the events that are pending, once. Any handler may run meanwhile, also one that closes the
/// window: callers check.
void ProcessPendingEvents();

/// Runs the program's events until it ends; the keyboard moves between the controls of `window`.
/// Returns the exit code.
int RunEvents(HWND window);

/// Sleeps until an event arrives, at most 10 ms: short enough not to be noticed, long enough not to load a
/// core.
void PauseForEvents();

/// Tries until `condition` holds, without a time limit, and processes events after each unsuccessful try.
/// Returns false when `window` was closed meanwhile.
template <class Condition>
bool WaitUntil(HWND window, Condition condition) {
    while (!condition()) {
        ProcessPendingEvents();
        if (!IsWindow(window))
            return false;
        PauseForEvents();
    }
    return true;
}

} // namespace obrin
