// Keys and clicks at awkward moments: nothing is started by mistake, and nothing is lost.

#include "end_to_end/Input.h"
#include "support/HeldFile.h"

namespace obrin::test {
namespace {

constexpr const char* updateTitle = "Auto Update Utility";

// A menu of workstation 5 with the program Backup selected and the keyboard in the tree.
class Keyboard : public testing::Test {
protected:
    Keyboard() {
        EXPECT_TRUE(installation.HostGets(typed));
        TreeView_SelectItem(tree, TreeView_GetNextSibling(tree, TreeView_GetRoot(tree)));
        EXPECT_TRUE(KeepsForeground(menu.Window()));
    }

    static bool HasFocus(HWND control) {
        GUITHREADINFO thread{};
        thread.cbSize = sizeof thread;
        GetGUIThreadInfo(GetWindowThreadProcessId(control, nullptr), &thread);
        return thread.hwndFocus == control;
    }

    void ExpectBackupRun() {
        typed.insert(typed.end(), {"LOAD CORE\\PROGRAMS\\CSBACKUP", "RUN"});
        EXPECT_TRUE(installation.HostGets(typed));
    }

    // Nothing more than expected is typed into the host, in a while that is long enough for a command.
    void ExpectNothingRun() const {
        Sleep(500);
        EXPECT_EQ(installation.Logged("line"), typed);
    }

    // Closes the window of the program that the host has started, and comes back to the menu.
    void CloseBackup() const {
        HWND program = nullptr;
        EXPECT_TRUE(Eventually([&] {
            return IsWindowVisible(program = FindWindowA("FennProgram", "CORE\\PROGRAMS\\CSBACKUP"));
        }));
        PostMessageA(program, WM_CLOSE, 0, 0);
        EXPECT_TRUE(Eventually([&] { return !IsWindow(program); }));
        SetForegroundWindow(menu.Window());
        EXPECT_TRUE(KeepsForeground(menu.Window()));
    }

    const Installation installation{5};
    const RunningMenu menu;
    const HWND tree = menu.Tree();
    const HWND button = GetDlgItem(GetParent(tree), IDC_COMMAND1);
    Lines typed{"LOAD CORE\\STARTSYS", "RUN", "UB"};
};

TEST_F(Keyboard, LetterWithoutAltRunsNothing) {
    for (const char* control : {"the button", "the link"}) {
        SCOPED_TRACE(control);
        PressKey(VK_TAB);
        PressKey('R');
        ExpectNothingRun();
    }
}

TEST_F(Keyboard, AltWithTheButtonsLetterRuns) {
    PressWithAlt('R');
    ExpectBackupRun();
}

TEST_F(Keyboard, EnterBehindAClickOnTheButtonRuns) {
    Click(button);
    ExpectBackupRun();
    CloseBackup();
    PressKey(VK_RETURN);
    ExpectBackupRun();
}

TEST_F(Keyboard, EnterHeldInTheTreeRunsOnce) {
    HoldKey(tree, VK_RETURN, 3);
    ExpectBackupRun();
    ExpectNothingRun();
}

TEST_F(Keyboard, EnterHeldOnTheButtonRunsOnce) {
    PressKey(VK_TAB);
    EXPECT_TRUE(Eventually([&] { return HasFocus(button); }));
    HoldKey(button, VK_RETURN, 3);
    ExpectBackupRun();
    ExpectNothingRun();
}

TEST_F(Keyboard, ClickThatSlipsByAFewPixelsSelects) {
    const POINT place = PlaceOfRow(tree, 0, 0);
    PointAt(place);
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    SetCursorPos(place.x + 8, place.y + 2);
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    EXPECT_TRUE(Eventually([&] { return TreeView_GetSelection(tree) == TreeView_GetRoot(tree); }));
}

TEST_F(Keyboard, EnterHeldThroughTheUpdateLeavesItsWindowOpen) {
    DeleteFileA("Updated.txt");
    HoldKey(tree, VK_RETURN, 3);
    EXPECT_TRUE(Eventually([&] { return menu.Texts(updateTitle).find("Complete") != std::string::npos; }));
    const HWND okay = GetDlgItem(menu.Window(updateTitle), IDOK);
    constexpr LPARAM repeated = 1 | LPARAM{KF_REPEAT} << 16;
    PostMessageA(okay, WM_KEYDOWN, VK_RETURN, repeated);
    ExpectNothingRun();
    EXPECT_TRUE(menu.Shown(updateTitle));
    PressKey(VK_RETURN);
    ExpectBackupRun();
}

TEST(TitleWithMarks, IsShownWithoutThemAndTakesNoKey) {
    const Installation installation(5);
    WriteFileBytes("UB.mnu", "R&&D of &Core\r\nA^K\r\n");
    const RunningMenu menu;
    ASSERT_TRUE(installation.HostGetsLast("UB"));
    EXPECT_EQ(TextOf(GetDlgItem(menu.Window(), IDC_LABEL1)), "R&D of Core");
    EXPECT_EQ(TextOf(GetDlgItem(menu.Window(), IDC_FRAME1)), "R&&D of Core")
        << "a group box shows this as one &";
    EXPECT_TRUE(KeepsForeground(menu.Window()));
    PressWithAlt('C');
    EXPECT_TRUE(Eventually([] { return IsWindowVisible(FindWindowA("#32768", nullptr)) != FALSE; }))
        << "Core Programs opens";
    PressKey(VK_ESCAPE);
    PressKey(VK_ESCAPE);
}

TEST(BusyFiles, AreWaitedForAtTheStartAndAtARun) {
    const Installation installation(5);
    WriteFileBytes("Core\\TempOut.tmp", "");
    HeldFile configuration("FennConfig.Sys", 0), temporary("Core\\TempOut.tmp", 0);
    configuration.ReleaseAfter(300);
    temporary.ReleaseAfter(600);
    const RunningMenu menu;
    ASSERT_TRUE(installation.HostGetsLast("UB"));
    HeldFile updated("Updated.txt", 0);
    updated.ReleaseAfter(300);
    const HWND tree = menu.Tree();
    TreeView_SelectItem(tree, TreeView_GetNextSibling(tree, TreeView_GetRoot(tree)));
    menu.Command(IDC_COMMAND1);
    EXPECT_TRUE(installation.HostGetsLast("RUN"));
}

} // namespace
} // namespace obrin::test
