// The event loop of the program, and functions that process events inside a handler.
#pragma once

#include "platform/WindowsApi.h"

#include <functional>

namespace obrin {

/// Processes events until none is pending. Any handler can run during the call and can even close the window,
/// so callers must check that their window still exists. Returns false if the program has to quit; RunEvents
/// then gets the quit message again.
bool ProcessPendingEvents();

/// Processes events until the program quits, and returns its exit code. Tab and the arrow keys move the focus
/// between the controls of each window. noexcept: better to end the program than to unwind through Windows.
int RunEvents() noexcept;

/// Tests a condition at least every 15 ms and processes events in between, without a time limit. Returns true
/// when the condition holds, or false if `window` is closed or the program quits first. Throws RunTimeError.
bool WaitUntil(HWND window, const std::function<bool()>& condition);

} // namespace obrin
