// The entry routine: prepares the host's configuration, refuses to run beside an open host, keeps the menu
// a single instance.
#pragma once

#include <functional>

namespace obrin {

/// The menu window as the entry routine knows it.
struct MenuWindow {
    const char* windowClass;
    const char* caption;        ///< from the first shown system on
    std::function<void()> show; ///< creates and shows it
};

/// Runs from the current directory, the host installation folder. Shows the menu window when it may be shown;
/// otherwise returns without having shown a window of its own. Throws RunTimeError when configuration or
/// temporary file cannot be read or written.
void Main(const MenuWindow& menu);

} // namespace obrin
