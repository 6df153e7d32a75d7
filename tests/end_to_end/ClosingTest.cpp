// The end of the menu: by its close box, at the end of the Windows session, and by an unexpected error.

#include "end_to_end/Installation.h"

namespace obrin::test {
namespace {

struct Closing : testing::Test {
    Closing() {
        // The host takes half a second for this command.
        SetEnvironmentVariableA("FENN_HANG", "LOAD CORE\\PROGRAMS\\CSBACKUP");
        SetEnvironmentVariableA("FENN_HANG_MS", "500");
        menu.emplace();
        EXPECT_TRUE(installation.HostGets(typed));
    }

    const Installation installation{5};
    std::optional<RunningMenu> menu;
    Lines typed{"LOAD CORE\\STARTSYS", "RUN", "UB"};
};

TEST_F(Closing, EndsTheHostAndRemovesTheMarkerFile) {
    menu->Close();
    EXPECT_EQ(menu->ExitCode(), 0);
    typed.emplace_back("RUN CORE\\EXIT");
    EXPECT_TRUE(installation.HostGets(typed));
    EXPECT_FALSE(FileExists("Menu 5.txt"));
}

TEST_F(Closing, WorksAfterTheHostHasEnded) {
    installation.EndHost();
    menu->Close();
    EXPECT_EQ(menu->ExitCode(), 0);
}

TEST_F(Closing, EndOfTheSessionLetsACommandBeTypedToItsEnd) {
    menu->Command(ID_BACKUP);
    EXPECT_TRUE(Eventually([&] { return !installation.Logged("hang").empty(); }));
    SendMessageA(menu->Window(), WM_ENDSESSION, TRUE, 0);
    EXPECT_EQ(menu->ExitCode(), 0);
    typed.insert(typed.end(), {"LOAD CORE\\PROGRAMS\\CSBACKUP", "RUN", "RUN CORE\\EXIT"});
    EXPECT_TRUE(installation.HostGets(typed));
    EXPECT_FALSE(FileExists("Menu 5.txt"));
    ExpectRemembered("UB.mnu");
}

TEST_F(Closing, CancelledEndOfTheSessionLeavesTheMenuOpen) {
    SendMessageA(menu->Window(), WM_ENDSESSION, FALSE, 0);
    EXPECT_TRUE(IsWindow(menu->Window()));
    EXPECT_EQ(installation.Logged("line"), typed);
}

TEST(ErrorBox, EndsTheMenuWithoutTheOrderlyClose) {
    const Installation installation(5);
    DeleteFileA("Updated.txt");
    CreateFolder("Updated.txt"); // makes running a program fail
    const RunningMenu menu;
    ASSERT_TRUE(installation.HostGetsLast("UB"));
    menu.Command(IDC_COMMAND1);
    EXPECT_NE(menu.Texts("ObrinMenu").find("Updated.txt"), std::string::npos) << menu.Texts("ObrinMenu");
    EXPECT_FALSE(IsWindowEnabled(menu.Window()));
    SendMessageA(menu.Window(), WM_CLOSE, 0, 0); // has no effect while the error is shown
    menu.Press("ObrinMenu", IDOK);
    EXPECT_EQ(menu.ExitCode(), 1);
    EXPECT_TRUE(installation.HostGetsLast("UB")) << "the menu must not send the exit command";
    EXPECT_TRUE(FileExists("Menu 5.txt"));
}

} // namespace
} // namespace obrin::test
