// Window events while a handler of ours is at work.
#pragma once

#include "platform/WindowsApi.h"

#include <functional>

namespace obrin {

/// Processes the events that are pending, once. Any handler may run meanwhile, also one that closes the
/// window: callers check. Returns false when one of them is the program's end, which stays for RunEvents.
bool ProcessPendingEvents();

/// Runs the program's events until it ends; the keyboard moves between the controls of each window. Returns
/// the exit code. Nothing that a procedure should have stopped comes through here.
int RunEvents() noexcept;

/// Tests a condition at least every 15 ms until it holds, without a time limit, and processes events in
/// between. Returns false when `window` was closed or the program ended first. Throws RunTimeError.
bool WaitUntil(HWND window, const std::function<bool()>& condition);

} // namespace obrin
