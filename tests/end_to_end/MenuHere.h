// The menu window in this process: a test can send it what Windows sends, and ask its controls what only
// their own process may ask.
#pragma once

#include "end_to_end/Installation.h"

namespace obrin::test {

/// Shows the menu of workstation 5 with the system "Water & Waste" and a picture of 120 x 90 pixels.
class MenuHere : public testing::Test {
protected:
    MenuHere();
    ~MenuHere() override;

    HWND Control(int id) const { return GetDlgItem(window, id); }

    /// The documents and shortcuts opened so far. They are only noted.
    static const Lines& OpenedDocuments();

    const Installation installation{5};
    frmMain menu;
    HWND window, frame, tree, button, title, picture, user, number, idea, link;
};

} // namespace obrin::test
