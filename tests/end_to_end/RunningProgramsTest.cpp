// The ways to run a program, and the update of the workstation before the first one.

#include "end_to_end/Input.h"

namespace obrin::test {
namespace {

// UB.mnu has the heading Billing, with the program Post in it, and the program Backup. The menu comes up in
// front with the keyboard in the tree and all headings closed.
class RunningPrograms : public testing::Test {
protected:
    explicit RunningPrograms(int wsid = 5)
        : installation(wsid) {}

    void SetUp() override {
        menu.emplace();
        EXPECT_TRUE(installation.HostGets(typed));
        EXPECT_TRUE(KeepsForeground(menu->Window()));
        tree = menu->Tree();
    }

    void SelectHeading() const { TreeView_SelectItem(tree, TreeView_GetRoot(tree)); }
    void SelectBackup() const {
        TreeView_SelectItem(tree, TreeView_GetNextSibling(tree, TreeView_GetRoot(tree)));
    }

    void ExpectRun(const char* program) {
        typed.insert(typed.end(), {std::string("LOAD ") + program, "RUN"});
        EXPECT_TRUE(installation.HostGets(typed));
    }

    void ExpectNothingRun() const {
        Sleep(300); // long enough for a command
        EXPECT_EQ(installation.Logged("line"), typed);
    }

    const Installation installation;
    std::optional<RunningMenu> menu;
    HWND tree = nullptr;
    Lines typed{"LOAD CORE\\STARTSYS", "RUN", "UB"};
};

constexpr const char* backup = "CORE\\PROGRAMS\\CSBACKUP";

TEST_F(RunningPrograms, ClickSelectsAProgramAndEnterRunsIt) {
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

TEST_F(RunningPrograms, ButtonBehindTheTreeRunsTheSelectedProgram) {
    SelectBackup();
    PressKey(VK_TAB);
    PressKey(VK_SPACE);
    ExpectRun(backup);
}

TEST_F(RunningPrograms, HeadingRunsNothing) {
    SelectHeading();
    menu->Command(IDC_COMMAND1);
    ExpectNothingRun();
}

TEST_F(RunningPrograms, CommandIsSentKeyByKeyAndNotPosted) {
    EXPECT_NE(ReadFileBytes("fenn.log").find("down 76\r\nup 76\r\ndown 79\r\nup 79\r\n"), std::string::npos)
        << "L and O of LOAD; the host logs a posted key with another word";
}

// Workstation 42 has not been updated. The register has a damaged end, and no whole record of three bytes is
// 042.
class FirstRun : public RunningPrograms {
protected:
    FirstRun()
        : RunningPrograms(42) {
        WriteFileBytes("Updated.txt", "42042004");
    }

    void RunBackup() const {
        SelectBackup();
        menu->Command(IDC_COMMAND1);
    }

    HWND CompleteUpdate() const {
        EXPECT_TRUE(Eventually([&] { return menu->Texts(title).find("Complete") != std::string::npos; }));
        return menu->Window(title);
    }

    static constexpr const char* title = "Auto Update Utility";
};

TEST_F(FirstRun, UpdatesTheWorkstationBeforeTheProgram) {
    RunBackup();
    CompleteUpdate();
    ExpectNothingRun();
    menu->Press(title, IDOK);
    ExpectRun(backup);
}

TEST_F(FirstRun, EntersTheWorkstationWhenTheUpdateIsClosed) {
    RunBackup();
    CompleteUpdate();
    EXPECT_EQ(ReadFileBytes("Updated.txt"), "42042004");
    menu->Press(title, IDOK);
    ExpectRun(backup);
    EXPECT_EQ(ReadFileBytes("Updated.txt"), "420420042");
}

TEST_F(FirstRun, EnterDuringTheUpdateRunsNothing) {
    SelectBackup();
    // The update that the first Enter begins handles the second one.
    for (int i = 0; i < 2; ++i)
        PostMessageA(tree, WM_CHAR, VK_RETURN, 0);
    CompleteUpdate();
    menu->Press(title, IDOK);
    ExpectRun(backup);
    ExpectNothingRun();
    EXPECT_FALSE(menu->Shown(title)) << "a second update";
}

TEST_F(FirstRun, ShowsTheUpdateBelowAndRightOfTheMenusCorner) {
    RunBackup();
    RECT corner, update;
    GetWindowRect(CompleteUpdate(), &update);
    GetWindowRect(menu->Window(), &corner);
    EXPECT_EQ(update.top - corner.top, (update.bottom - update.top) / 2 / 2) << "a quarter of its height";
    EXPECT_EQ(update.left - corner.left, (update.right - update.left) / 2) << "half its width";
}

} // namespace
} // namespace obrin::test
