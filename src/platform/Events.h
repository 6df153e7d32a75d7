// Window events while a handler of ours is at work.
#pragma once

#include "platform/Handle.h"

namespace obrin {

/// Processes the events that are pending, once. Any handler may run meanwhile, also one that closes the
/// window: callers check.
void ProcessPendingEvents();

/// Runs the program's events until it ends; the keyboard moves between the controls of `window`.
/// Returns the exit code.
int RunEvents(HWND window);

/// A pause between two tries: short enough not to be noticed, long enough not to load a core.
class EventPause {
public:
    EventPause();
    /// Sleeps until an event arrives, at most 12 ms.
    void Sleep() const;

private:
    UniqueFile timer; // none on a Windows that has no timers finer than its clock's ticks
};

/// Tries until `condition` holds, without a time limit, and processes events after each unsuccessful try.
/// Returns false when `window` was closed meanwhile.
template <class Condition>
bool WaitUntil(HWND window, Condition condition) {
    const EventPause pause;
    while (IsWindow(window)) {
        if (condition())
            return true;
        ProcessPendingEvents();
        pause.Sleep();
    }
    return false;
}

} // namespace obrin
