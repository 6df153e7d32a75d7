// What holds for every window: it comes back from a screen of another DPI as it was, and a screen reader
// knows its controls by their labels.

#include "maintenance/LocalMachine.h"
#include "maintenance/frmAbout.h"
#include "maintenance/frmUpdate.h"
#include "platform/Failure.h"
#include "platform/ModalTest.h"
#include "platform/ScratchFolder.h"
#include "platform/WindowChecks.h"
#include "resources/Ids.h"
#include "settings/Form2.h"
#include "startup/HostLink.h"
#include "startup/HostNotice.h"

#include <map>

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
    }

    const test::ScratchFolder folder;
    const test::LocalMachine machine;
    const SupportLibrary corvel;
};

TEST_F(EveryWindow, ComesBackFromOtherScreensAsItWas) {
    ForEachDialog([](HWND dialog) {
        RECT place, work;
        GetWindowRect(dialog, &place);
        SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
        if (GetDlgItem(dialog, IDC_LABEL1) == nullptr) { // that one stands beside its owner's corner
            EXPECT_NEAR(place.left + place.right, work.left + work.right, 2);
            EXPECT_NEAR(place.top + place.bottom, work.top + work.bottom, 2);
        }
        test::IsTheSameAfterOtherScreens(dialog);
    });
    const std::string caption = "Obrin-05";
    HostNotice notice(owner, caption, ERROR_BAD_EXE_FORMAT);
    notice.ShowWhenDue();
    const HWND window = FindWindowA(nullptr, "Waiting for Fenn");
    EXPECT_NE(GetActiveWindow(), window) << "takes the keyboard from nobody";
    test::IsTheSameAfterOtherScreens(window);
    const std::string reason = WindowText(GetDlgItem(window, IDC_REASON));
    EXPECT_TRUE(reason.ends_with(PlatformText(ERROR_BAD_EXE_FORMAT, hostProgram)));
    EXPECT_EQ(reason.find('\n'), std::string::npos);
}

BOOL CALLBACK AddAnnounced(HWND control, LPARAM names) {
    const std::map<std::string, LONG> roles{{WC_EDITA, ROLE_SYSTEM_TEXT},
                                            {WC_COMBOBOXA, ROLE_SYSTEM_COMBOBOX},
                                            {TRACKBAR_CLASSA, ROLE_SYSTEM_SLIDER}};
    char className[100] = "";
    GetClassNameA(control, className, sizeof className);
    const auto found = roles.find(className);
    const HWND label = GetWindow(control, GW_HWNDPREV);
    if (found == roles.end() || label == nullptr) // the box in a combo
        return TRUE;
    // Where this platform does not know the kind of control, it calls it a client window and reads its text;
    // others take the label in front for its name.
    const auto [heardName, heardRole] = test::Announced(control);
    EXPECT_TRUE(heardRole == found->second || heardRole == ROLE_SYSTEM_CLIENT) << heardName;
    if (found->second != ROLE_SYSTEM_COMBOBOX || heardRole != ROLE_SYSTEM_CLIENT) {
        EXPECT_EQ(heardName, WindowText(label));
    }
    *reinterpret_cast<std::string*>(names) += WindowText(label) + "|";
    return TRUE;
}

TEST_F(EveryWindow, AnnouncesItsControlsByTheirLabels) {
    std::string names;
    ForEachDialog([&](HWND dialog) {
        names += WindowText(dialog) + ": ";
        EnumChildWindows(dialog, AddAnnounced, reinterpret_cast<LPARAM>(&names));
    });
    EXPECT_EQ(names,
              "Properties: System:|Program Name:|Help File:|Height:|Width:|Orientation:|Lines:|Columns:|"
              "Font Size:|Save to as Start:|Top Margin|Top Margin|Bottom Margin|Bottom Margin|"
              "Left Margin|Left Margin|Right Margin|Right Margin|"
              "Obrin Software Systems: Auto Update Utility: A title: A question?|");
}

} // namespace
} // namespace obrin
