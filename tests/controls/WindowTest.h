// A fixture that opens each window of the menu program in this process, with the contents an operator sees.
#pragma once

#include "common/Installation.h"
#include "controls/InputBox.h"
#include "maintenance/frmAbout.h"
#include "maintenance/frmUpdate.h"
#include "menu/ShownMenu.h"
#include "resources/Ids.h"
#include "settings/Form2.h"
#include "startup/HostNotice.h"
#include "support/DialogTest.h"
#include "support/LocalMachine.h"
#include "support/ScratchFolder.h"
#include "support/WindowChecks.h"

namespace obrin::test {

class WindowTest : public DialogTest {
public:
    WindowTest() {
        SetEnvironmentVariableA(temporaryFolderVariable, folder.path.string().c_str());
        SetEnvironmentVariableA(localHostVariable, "missing"); // the update copies nothing
        CoInitialize(nullptr);
    }
    ~WindowTest() override { CoUninitialize(); }

    /// Calls `act` while a dialog is open. Fails if no dialog appears.
    void WhileOpen(const std::function<void()>& open, const WindowAction& act,
                   const std::function<bool(HWND)>& isReady = IsWindowVisible) const {
        EXPECT_TRUE(ActInDialog(owner, open, act, isReady)) << "no dialog appeared";
    }
    void WhileGeneralPage(const WindowAction& act) { WhileProperties(0, act); }
    void WhileSettingsPage(const WindowAction& act) { WhileProperties(1, act); }
    void WhileMarginsPage(const WindowAction& act) { WhileProperties(2, act); }
    void WhileProperties(int page, const WindowAction& act) {
        WhileOpen([this] { Form2(corvel, "Core\\Programs\\CSBackup").Show(owner); },
                  [&](HWND dialog) {
                      SendDlgItemMessageA(dialog, IDC_TABSTRIP1, TCM_SETCURFOCUS, static_cast<WPARAM>(page),
                                          0);
                      act(dialog);
                  });
    }
    void WhileAboutBox(const WindowAction& act) {
        WhileOpen([this] { frmAbout().Show(owner); }, act);
    }
    void WhileUpdateWindow(const WindowAction& act) {
        WhileOpen([this] { frmUpdate().Show(owner); }, act,
                  [](HWND dialog) { return IsWindowVisible(GetDlgItem(dialog, IDOK)); });
    }
    void WhileInputBox(const WindowAction& act) {
        const std::string question = "Hello " + std::string(20, 'W') + // the longest usual user name
                                     ", we have detected this is your first entry into Obrin what would you "
                                     "like your WSID Number to be?\r\n\r\n(Valid Answers are 1 to 99)";
        WhileOpen([&] { InputBox(owner, question, "Please Select a WSID"); }, act);
    }
    void WhileHostNotice(const WindowAction& act) {
        const std::string station = "Obrin-05";
        HostNotice notice(owner, station, ERROR_BAD_EXE_FORMAT);
        notice.ShowWhenDue();
        act(DialogOver(owner));
    }
    void WhileMenu(const WindowAction& act) {
        const ShownMenu menu;
        // At 192 DPI it still fits on the screen.
        SetWindowPos(menu.Window(), nullptr, 30, 20, 600, 450, SWP_NOZORDER);
        act(menu.Window());
    }

    const ScratchFolder folder;
    const LocalMachine machine;
    const SupportLibrary corvel;
};

using WhileWindow = void (WindowTest::*)(const WindowAction&);

struct OpenedWindow {
    const char* name;
    WhileWindow whileOpen;
};

constexpr OpenedWindow allWindows[] = {{"PropertiesGeneral", &WindowTest::WhileGeneralPage},
                                       {"PropertiesPageSettings", &WindowTest::WhileSettingsPage},
                                       {"PropertiesPageMargins", &WindowTest::WhileMarginsPage},
                                       {"AboutBox", &WindowTest::WhileAboutBox},
                                       {"UpdateWindow", &WindowTest::WhileUpdateWindow},
                                       {"InputBox", &WindowTest::WhileInputBox},
                                       {"HostNotice", &WindowTest::WhileHostNotice},
                                       {"Menu", &WindowTest::WhileMenu}};

} // namespace obrin::test
