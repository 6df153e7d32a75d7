// The menu window in this process. A test can send it the messages of Windows, also those that work only
// within one process.
#pragma once

#include "common/Installation.h"
#include "menu/frmMain.h"
#include "platform/Events.h"
#include "platform/File.h"
#include "platform/Workstation.h"
#include "startup/UserRecords.h"
#include "support/ScratchFolder.h"

namespace obrin::test {

/// Shows the menu of workstation 5 with the system Utility Billing and a picture of 120 x 90 pixels. Writes
/// the files for that into the current folder.
class ShownMenu {
public:
    ShownMenu() {
        WriteFileBytes("UserWSID.sys", UserWsidRecord(LoginName(), 5));
        WriteFileBytes("UB.mnu", "Utility Billing\r\nBackup^Core\\Programs\\CSBackup\r\n");
        WriteFileBytes("Startup.bmp", Bmp(120, 90));
        menu.Show();
    }
    ShownMenu(const ShownMenu&) = delete;
    ShownMenu& operator=(const ShownMenu&) = delete;
    ~ShownMenu() {
        SendMessageA(menu.Window(), WM_CLOSE, 0, 0);
        RunEvents(); // removes the quit message that closing the menu has posted
        DestroyWindow(station);
    }

    HWND Window() const { return menu.Window(); }

private:
    // A stand-in for the host's window. The menu finds it and types into its child.
    static HWND MakeStation() {
        WNDCLASSA hostClass{};
        hostClass.lpfnWndProc = DefWindowProcA;
        hostClass.lpszClassName = hostWindowClass;
        RegisterClassA(&hostClass);
        const HWND station = CreateWindowExA(0, hostWindowClass, "Obrin-05", WS_POPUP | WS_VISIBLE, 0, 0, 0,
                                             0, nullptr, nullptr, nullptr, nullptr);
        CreateWindowExA(0, WC_STATICA, "", WS_CHILD, 0, 0, 0, 0, station, nullptr, nullptr, nullptr);
        return station;
    }

    const HWND station = MakeStation();
    frmMain menu;
};

} // namespace obrin::test
