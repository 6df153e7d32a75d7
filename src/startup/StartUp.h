// The entry routine: prepares the host's configuration, refuses to run beside an open host, keeps the menu
// a single instance.
#pragma once

#include <functional>

namespace obrin {

/// Runs from the current directory, the host installation folder. Calls `showMenu`, which creates and shows
/// the menu window, when the menu may be shown; otherwise returns without having shown a window of its own.
/// Throws RunTimeError when configuration or temporary file cannot be read or written.
void Main(const std::function<void()>& showMenu);

} // namespace obrin
