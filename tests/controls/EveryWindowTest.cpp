// What holds for every dialog: it is as windows.txt says, it comes back from a screen of another DPI as it
// was, and a screen reader knows its controls by their labels.

#include "common/Installation.h"
#include "controls/InputBox.h"
#include "controls/WindowText.h"
#include "maintenance/frmAbout.h"
#include "maintenance/frmUpdate.h"
#include "platform/Failure.h"
#include "settings/Form2.h"
#include "startup/HostLink.h"
#include "startup/HostNotice.h"
#include "support/ModalTest.h"
#include "support/WindowChecks.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <set>

namespace obrin {
namespace {

class EveryWindow : public test::ModalTest {
protected:
    EveryWindow() {
        SetEnvironmentVariableA("TesselTemp", folder.path.string().c_str());
        SetEnvironmentVariableA("Tessel", "missing");
        CoInitialize(nullptr);
    }

    ~EveryWindow() override { CoUninitialize(); }

    void ForEachDialog(const std::function<void(HWND)>& act) {
        const std::function<void()> shows[] = {
            [this] { Form2(corvel, "UB").Show(owner); },
            [this] { frmAbout().Show(owner); },
            [this] { frmUpdate().Show(owner); },
            [this] { InputBox(owner, "A question?", "A title"); },
        };
        for (const auto& show : shows) {
            bool done = false; // what a dialog does meanwhile may bring us back here
            While(show, [&](HWND dialog) {
                SCOPED_TRACE(WindowText(dialog));
                if (!std::exchange(done, true))
                    act(dialog);
                PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
            });
        }
        HostNotice notice(owner, "Obrin-05", ERROR_BAD_EXE_FORMAT);
        notice.ShowWhenDue();
        const HWND window = FindWindowA(nullptr, "Waiting for Fenn");
        EXPECT_NE(GetActiveWindow(), window) << "takes the keyboard from nobody";
        act(window);
    }

    const test::ScratchFolder folder;
    const test::LocalMachine machine;
    const SupportLibrary corvel;
};

TEST_F(EveryWindow, ComesBackFromOtherScreensAsItWas) {
    std::string reason; // why the host was not started
    ForEachDialog([&](HWND dialog) {
        reason = WindowText(GetDlgItem(dialog, IDC_REASON));
        RECT place, work;
        GetWindowRect(dialog, &place);
        SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
        // One stands beside its owner's corner; and now and then a display puts one into its own.
        if (GetDlgItem(dialog, IDC_LABEL1) == nullptr && place.left > 0) {
            EXPECT_NEAR(place.left + place.right, work.left + work.right, 2);
            EXPECT_NEAR(place.top + place.bottom, work.top + work.bottom, 2);
        }
        test::IsTheSameAfterOtherScreens(dialog);
    });
    EXPECT_TRUE(reason.ends_with(PlatformText(ERROR_BAD_EXE_FORMAT, hostProgram)));
    EXPECT_TRUE(reason.find('\n') == std::string::npos && reason.rfind(hostProgram) != 0) << reason;
}

// A line for each control with its class, style, place in dialog units and text, and the same name for a
// screen reader.
BOOL CALLBACK AddLine(HWND control, LPARAM lines) {
    const std::map<std::string, LONG> roles{{WC_EDITA, ROLE_SYSTEM_TEXT},
                                            {WC_COMBOBOXA, ROLE_SYSTEM_COMBOBOX},
                                            {TRACKBAR_CLASSA, ROLE_SYSTEM_SLIDER}};
    // What changes while it is looked at, and what is different at each place or in each version.
    const std::set<int> varying{IDC_LABEL1, IDC_FOLDER, IDC_REASON, IDC_LBL_VERSION, IDC_PIC_ICON};
    const HWND parent = GetParent(control);
    if (GetDlgCtrlID(parent) == IDC_CMB_ORIENTATION) // the box in a combo
        return TRUE;
    char className[100] = "", line[200] = "", caption[100] = "";
    GetClassNameA(control, className, sizeof className);
    // With the keyboard a button is the default one, and that of the update comes late.
    const DWORD changing = className == std::string(WC_BUTTONA) ? BS_DEFPUSHBUTTON | WS_VISIBLE : 0;
    std::string text = "...";
    RECT units{0, 0, 400, 800}, place{};
    if (!varying.contains(GetDlgCtrlID(control))) {
        MapDialogRect(parent, &units);
        GetWindowRect(control, &place);
        MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
        text = WindowText(control);
    }
    if (className == std::string("#32770")) { // the pages' places depend on the tabs
        GetClientRect(control, &place);
        units = {0, 0, 400, 800};
        MapDialogRect(control, &units);
        place.right = (GetWindowStyle(control) & WS_CHILD) != 0 ? 0 : place.right;
    }
    // The about box takes its heights from its texts, and others those of combo boxes from the font.
    const bool grows =
        GetDlgItem(parent, IDC_PIC_ICON) != nullptr || GetDlgItem(control, IDC_PIC_ICON) != nullptr;
    const bool isHigh = !grows && place.right != 0 && className != std::string(WC_COMBOBOXA);
    std::snprintf(line, sizeof line, "%s %08lX %d,%d %d,%d ", className, GetWindowStyle(control) & ~changing,
                  MulDiv(place.left, 400, units.right), MulDiv(grows ? 0 : place.top, 800, units.bottom),
                  MulDiv(place.right - place.left, 400, units.right),
                  MulDiv(isHigh ? place.bottom - place.top : 0, 800, units.bottom));
    std::erase(text, '\r');
    std::ranges::replace(text, '\n', '|');
    TCITEMA tab{TCIF_TEXT, 0, 0, caption, sizeof caption, 0, 0};
    for (WPARAM i = 0; SendMessageA(control, TCM_GETITEMA, i, reinterpret_cast<LPARAM>(&tab)) != 0; ++i)
        text.append(caption).append("^");
    reinterpret_cast<std::string*>(lines)->append(line).append(text).append("|\n");

    if (const auto found = roles.find(className); found != roles.end()) {
        // Where this platform does not know the kind of control, it calls it a client window and reads its
        // text; others take the label in front for its name.
        const auto [heardName, heardRole] = test::Announced(control);
        EXPECT_TRUE(heardRole == found->second || heardRole == ROLE_SYSTEM_CLIENT) << heardName;
        if (found->second != ROLE_SYSTEM_COMBOBOX || heardRole != ROLE_SYSTEM_CLIENT) {
            EXPECT_EQ(heardName, WindowText(GetWindow(control, GW_HWNDPREV)));
        }
    }
    return TRUE;
}

TEST_F(EveryWindow, HasTheTextsAndControlsOfTheListAndAnnouncesThemByTheirLabels) {
    std::string lines;
    ForEachDialog([&](HWND dialog) {
        const auto defaultButton = LOWORD(SendMessageA(dialog, DM_GETDEFID, 0, 0));
        AddLine(dialog, reinterpret_cast<LPARAM>(&lines));
        lines.back() = ' ';
        lines += "Enter presses " + std::to_string(defaultButton) +
                 ((GetWindowExStyle(dialog) & WS_EX_APPWINDOW) != 0 ? ", in the task bar\n" : "\n");
        EXPECT_EQ(SendMessageA(dialog, WM_GETICON, ICON_BIG, 0),
                  reinterpret_cast<LRESULT>(LoadIconA(Instance(), MAKEINTRESOURCEA(IDI_OBRIN))));
        const HWND answer = GetDlgItem(dialog, IDC_ANSWER);
        EXPECT_TRUE(answer == nullptr || GetFocus() == answer) << "can be typed at once";
        EnumChildWindows(dialog, AddLine, reinterpret_cast<LPARAM>(&lines));
        RECT place{};
        SendMessageA(dialog, WM_DPICHANGED, USER_DEFAULT_SCREEN_DPI, reinterpret_cast<LPARAM>(&place));
        const HWND button = GetDlgItem(dialog, defaultButton);
        lines += test::FontOf(button) + "\n";
        for (const int change : {WM_SETTINGCHANGE, WM_THEMECHANGED, WM_SYSCOLORCHANGE}) {
            const LRESULT font = SendMessageA(button, WM_GETFONT, 0, 0);
            UpdateWindow(dialog);
            SendMessageA(dialog, static_cast<UINT>(change), 0, 0);
            EXPECT_NE(SendMessageA(button, WM_GETFONT, 0, 0), font) << "laid out anew";
            EXPECT_TRUE(GetUpdateRect(dialog, nullptr, FALSE)) << "painted anew";
        }
    });
    const HRSRC list = FindResourceA(nullptr, "WINDOWS", RT_RCDATA);
    EXPECT_EQ(lines, std::string(static_cast<const char*>(LockResource(LoadResource(nullptr, list))),
                                 SizeofResource(nullptr, list)));
}

} // namespace
} // namespace obrin
