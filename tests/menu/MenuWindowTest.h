// A fixture that shows the menu window in this process.
#pragma once

#include "controls/WindowTest.h"

namespace obrin::test {

class MenuWindowTest : public WindowTest {
protected:
    const ShownMenu menu;
    const HWND window = menu.Window();
    const HWND frame = GetDlgItem(window, IDC_FRAME1);
    const HWND tree = GetDlgItem(frame, IDC_TREEVIEW1);
    const HWND button = GetDlgItem(frame, IDC_COMMAND1);
    const HWND title = GetDlgItem(window, IDC_LABEL1);
    const HWND picture = GetDlgItem(window, IDC_IMAGE1);
    const HWND user = GetDlgItem(window, IDC_LABEL2);
    const HWND number = GetDlgItem(window, IDC_LABEL3);
    const HWND question = GetDlgItem(window, IDC_LABEL4); // "Got a better idea?"
    const HWND link = GetDlgItem(window, IDC_LABEL5);
};

} // namespace obrin::test
