// The ways to run a program, keys and clicks at awkward moments, and the update of the workstation before the
// first program.

#include "end_to_end/Input.h"
#include "support/HeldFile.h"

namespace obrin::test {
namespace {

constexpr const char* backup = "CORE\\PROGRAMS\\CSBACKUP";

// UB.mnu has the heading Billing, with the program Post in it, and the program Backup. The menu comes up in
// front with Backup selected, the keyboard in the tree and all headings closed.
class RunningPrograms : public testing::Test {
protected:
    explicit RunningPrograms(int wsid = 5)
        : installation(wsid) {
        EXPECT_TRUE(installation.HostGets(typed));
        EXPECT_TRUE(KeepsForeground(menu.Window()));
        TreeView_SelectItem(tree, TreeView_GetNextSibling(tree, TreeView_GetRoot(tree)));
    }

    void ExpectRun(const char* program) {
        typed.insert(typed.end(), {std::string("LOAD ") + program, "RUN"});
        EXPECT_TRUE(installation.HostGets(typed));
    }

    void ExpectNothingRun() const {
        Sleep(500); // long enough for a command
        EXPECT_EQ(installation.Logged("line"), typed);
    }

    const Installation installation;
    const RunningMenu menu;
    const HWND tree = menu.Tree(), button = menu.Button();
    Lines typed{"LOAD CORE\\STARTSYS", "RUN", "UB"};
};

TEST_F(RunningPrograms, ClickSelectsAProgramAndEnterRunsIt) {
    TreeView_SelectItem(tree, TreeView_GetRoot(tree));
    ClickRow(tree, 1, 0, leftClick);
    PressKey(VK_RETURN);
    ExpectRun(backup);
}

TEST_F(RunningPrograms, DoubleClickOpensAHeadingAndRunsAProgramInIt) {
    ClickRow(tree, 0, 0, leftClick, 2);
    EXPECT_TRUE(Eventually(
        [&] { return TreeView_GetItemState(tree, TreeView_GetRoot(tree), TVIS_EXPANDED) & TVIS_EXPANDED; }));
    ClickRow(tree, 1, 1, leftClick, 2);
    ExpectRun("UB\\PROGRAMS\\POST");
}

TEST_F(RunningPrograms, SpaceOnTheButtonRunsTheSelectedProgram) {
    PressKey(VK_TAB);
    PressKey(VK_SPACE);
    ExpectRun(backup);
}

TEST_F(RunningPrograms, HeadingRunsNothing) {
    TreeView_SelectItem(tree, TreeView_GetRoot(tree));
    menu.Command(IDC_COMMAND1);
    ExpectNothingRun();
}

TEST_F(RunningPrograms, CommandIsSentKeyByKeyAndNotPosted) {
    EXPECT_NE(ReadFileBytes("fenn.log").find("down 76\r\nup 76\r\ndown 79\r\nup 79\r\n"), std::string::npos)
        << "the keys L and O of LOAD; the host adds \"posted\" to the line of a posted key";
}

// --- Awkward moments ---

TEST_F(RunningPrograms, LetterWithoutAltRunsNothing) {
    for (const char* control : {"the button", "the link"}) {
        SCOPED_TRACE(control);
        PressKey(VK_TAB);
        PressKey('R');
        ExpectNothingRun();
    }
}

TEST_F(RunningPrograms, AltWithTheButtonsLetterRuns) {
    PressWithAlt('R');
    ExpectRun(backup);
}

TEST_F(RunningPrograms, EnterAfterAClickOnTheButtonRuns) {
    Click(button);
    ExpectRun(backup);
    // Closes the window of the program and brings the menu to the front.
    HWND program = nullptr;
    EXPECT_TRUE(Eventually([&] { return IsWindowVisible(program = FindWindowA("FennProgram", backup)); }));
    PostMessageA(program, WM_CLOSE, 0, 0);
    EXPECT_TRUE(Eventually([&] { return !IsWindow(program); }));
    SetForegroundWindow(menu.Window());
    EXPECT_TRUE(KeepsForeground(menu.Window()));
    PressKey(VK_RETURN);
    ExpectRun(backup);
}

TEST_F(RunningPrograms, EnterHeldInTheTreeRunsOnce) {
    HoldKey(tree, VK_RETURN, 3);
    ExpectRun(backup);
    ExpectNothingRun();
}

TEST_F(RunningPrograms, EnterHeldOnTheButtonRunsOnce) {
    PressKey(VK_TAB);
    EXPECT_TRUE(Eventually([&] {
        GUITHREADINFO thread{};
        thread.cbSize = sizeof thread;
        GetGUIThreadInfo(GetWindowThreadProcessId(button, nullptr), &thread);
        return thread.hwndFocus == button;
    }));
    HoldKey(button, VK_RETURN, 3);
    ExpectRun(backup);
    ExpectNothingRun();
}

TEST_F(RunningPrograms, ClickWithASmallMoveOfTheMouseSelects) {
    const POINT place = PlaceOfRow(tree, 0, 0);
    PointAt(place);
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    SetCursorPos(place.x + 8, place.y + 2);
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    EXPECT_TRUE(Eventually([&] { return TreeView_GetSelection(tree) == TreeView_GetRoot(tree); }));
}

TEST(BusyFiles, AreRetriedAtTheStartAndBeforeAProgramRuns) {
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

// --- The update ---

// Workstation 42 has not been updated. The register holds the records 420 and 420, and an incomplete one, 04.
// The digits 042 occur in it, but not as a record.
class FirstRun : public RunningPrograms {
protected:
    FirstRun()
        : RunningPrograms(42) {
        WriteFileBytes("Updated.txt", "42042004");
    }

    HWND WaitForCompleteUpdate() const {
        EXPECT_TRUE(Eventually([&] { return menu.Texts(title).find("Complete") != std::string::npos; }));
        return menu.Window(title);
    }

    static constexpr const char* title = "Auto Update Utility";
};

TEST_F(FirstRun, EntersTheWorkstationAndRunsTheProgramWhenTheUpdateIsClosed) {
    menu.Command(IDC_COMMAND1);
    WaitForCompleteUpdate();
    ExpectNothingRun();
    EXPECT_EQ(ReadFileBytes("Updated.txt"), "42042004");
    menu.Press(title, IDOK);
    ExpectRun(backup);
    EXPECT_EQ(ReadFileBytes("Updated.txt"), "420420042");
}

TEST_F(FirstRun, EnterDuringTheUpdateRunsNothing) {
    // The second Enter is handled during the update that the first one starts.
    for (int i = 0; i < 2; ++i)
        PostMessageA(tree, WM_CHAR, VK_RETURN, 0);
    WaitForCompleteUpdate();
    menu.Press(title, IDOK);
    ExpectRun(backup);
    ExpectNothingRun();
    EXPECT_FALSE(menu.Shown(title)) << "there must be no second update";
}

TEST_F(FirstRun, EnterHeldThroughTheUpdateLeavesItsWindowOpen) {
    HoldKey(tree, VK_RETURN, 3);
    constexpr LPARAM repeated = 1 | LPARAM{KF_REPEAT} << 16;
    PostMessageA(GetDlgItem(WaitForCompleteUpdate(), IDOK), WM_KEYDOWN, VK_RETURN, repeated);
    ExpectNothingRun();
    EXPECT_TRUE(menu.Shown(title));
    PressKey(VK_RETURN);
    ExpectRun(backup);
}

TEST_F(FirstRun, ShowsTheUpdateBelowAndRightOfTheMenusCorner) {
    menu.Command(IDC_COMMAND1);
    RECT corner, update;
    GetWindowRect(WaitForCompleteUpdate(), &update);
    GetWindowRect(menu.Window(), &corner);
    EXPECT_EQ(update.top - corner.top, (update.bottom - update.top) / 2 / 2)
        << "a quarter of the height of the update window";
    EXPECT_EQ(update.left - corner.left, (update.right - update.left) / 2)
        << "half the width of the update window";
}

} // namespace
} // namespace obrin::test
