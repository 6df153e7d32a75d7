// Window events while a handler of ours is at work.
#pragma once

#include "platform/WindowsApi.h"

#include <functional>

namespace obrin {

/// Processes the events that are pending, once. Any handler may run meanwhile, also one that closes the
/// window: callers check.
void ProcessPendingEvents();

/// Runs the program's events until it ends; the keyboard moves between the controls of `window`.
/// Returns the exit code.
int RunEvents(HWND window);

/// Tries until `condition` holds, without a time limit, and processes the events that arrive meanwhile.
/// The tries are about 13 ms apart and run beside the window's thread: the condition throws nothing and looks
/// at nothing that this thread changes. Returns false when `window` was closed first.
bool WaitUntil(HWND window, const std::function<bool()>& condition);

/// Processes events until `window` is closed.
void WaitUntilClosed(HWND window);

} // namespace obrin
