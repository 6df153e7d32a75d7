// The entry routine of the menu.
#pragma once

#include <functional>

namespace obrin {

/// What the entry routine needs to know about the menu window.
struct MenuWindow {
    const char* windowClass;
    const char* caption;        ///< the window has it only once a system is shown
    std::function<void()> show; ///< creates and shows the window
};

/// Rewrites the host's configuration in the current directory and shows the menu window. Without a
/// configuration only shows a message. If a host is open, offers to show that one instead; if another menu is
/// open, activates that one. Throws RunTimeError.
void Main(const MenuWindow& menu);

} // namespace obrin
