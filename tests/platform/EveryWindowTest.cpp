// What holds for every window: it comes back from a screen of another DPI as it was, and a screen reader
// knows its controls by their labels.

#include "maintenance/LocalMachine.h"
#include "maintenance/frmAbout.h"
#include "maintenance/frmUpdate.h"
#include "platform/ModalTest.h"
#include "platform/ScratchFolder.h"
#include "platform/WindowChecks.h"
#include "resources/Ids.h"
#include "settings/Form2.h"
#include "startup/HostNotice.h"

#include <map>

namespace obrin {
namespace {

class EveryWindow : public test::ModalTest {
protected:
    EveryWindow() {
        SetEnvironmentVariableA("TesselTemp", folder.path.string().c_str());
        SetEnvironmentVariableA("Tessel", "missing");
        const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES};
        InitCommonControlsEx(&controls);
        CoInitialize(nullptr);
    }

    ~EveryWindow() override { CoUninitialize(); }

    void ForEachDialog(const std::function<void(HWND)>& act) {
        const std::function<void()> shows[] = {
            [this] { Form2(corvel, key).Show(owner); },
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
    }

    const test::ScratchFolder folder;
    const test::LocalMachine machine;
    const SupportLibrary corvel;
    const std::string key = "Core\\Programs\\CSBackup";
};

TEST_F(EveryWindow, ComesBackFromOtherScreensAsItWas) {
    ForEachDialog(test::IsTheSameAfterOtherScreens);
    const std::string caption = "Obrin-05";
    HostNotice notice(owner, caption, ERROR_FILE_NOT_FOUND);
    notice.ShowWhenDue();
    test::IsTheSameAfterOtherScreens(FindWindowA(nullptr, "Waiting for Fenn"));
}

// A control and how it is announced. Where this platform does not know the kind of control, it calls it a
// client window and reads its text; others take the label in front for its name.
struct Announcement {
    int id;
    const char* name;
    LONG role;
};

BOOL CALLBACK AddControl(HWND control, LPARAM controls) {
    (*reinterpret_cast<std::map<int, HWND>*>(controls))[GetDlgCtrlID(control)] = control;
    return TRUE;
}

void IsAnnounced(HWND window, const std::vector<Announcement>& announcements) {
    std::map<int, HWND> controls;
    EnumChildWindows(window, AddControl, reinterpret_cast<LPARAM>(&controls));
    for (const auto& [id, name, role] : announcements) {
        const auto [heardName, heardRole] = test::Announced(controls[id]);
        EXPECT_EQ(WindowText(GetWindow(controls[id], GW_HWNDPREV)), name);
        EXPECT_TRUE(heardRole == role || heardRole == ROLE_SYSTEM_CLIENT) << name;
        if (role != ROLE_SYSTEM_COMBOBOX || heardRole == role) {
            EXPECT_EQ(heardName, name);
        }
    }
}

TEST_F(EveryWindow, AnnouncesItsControlsByTheirLabels) {
    constexpr LONG text = ROLE_SYSTEM_TEXT, slider = ROLE_SYSTEM_SLIDER;
    const std::map<std::string, std::vector<Announcement>> windows{
        {"Properties",
         {{IDC_TXT_SYSTEM, "System:", text},
          {IDC_TXT_PROGRAM_NAME, "Program Name:", text},
          {IDC_TXT_HELP_FILE, "Help File:", text},
          {IDC_TXT_HEIGHT, "Height:", text},
          {IDC_TXT_WIDTH, "Width:", text},
          {IDC_CMB_ORIENTATION, "Orientation:", ROLE_SYSTEM_COMBOBOX},
          {IDC_TXT_LINES, "Lines:", text},
          {IDC_TXT_COLUMNS, "Columns:", text},
          {IDC_TXT_FONT_SIZE, "Font Size:", text},
          {IDC_TXT_SAVE_TO_AS_START, "Save to as Start:", text},
          {IDC_TXT_MARGIN, "Top Margin", text},
          {IDC_SLD_MARGIN, "Top Margin", slider},
          {IDC_TXT_MARGIN + 1, "Bottom Margin", text},
          {IDC_SLD_MARGIN + 1, "Bottom Margin", slider},
          {IDC_TXT_MARGIN + 2, "Left Margin", text},
          {IDC_SLD_MARGIN + 2, "Left Margin", slider},
          {IDC_TXT_MARGIN + 3, "Right Margin", text},
          {IDC_SLD_MARGIN + 3, "Right Margin", slider}}},
        {"A title", {{IDC_ANSWER, "A question?", text}}},
    };
    ForEachDialog([&](HWND dialog) {
        if (const auto found = windows.find(WindowText(dialog)); found != windows.end())
            IsAnnounced(dialog, found->second);
    });
}

} // namespace
} // namespace obrin
