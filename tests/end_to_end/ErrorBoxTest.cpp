// An unexpected error: its box ends the menu at once, without the orderly close.

#include "end_to_end/Installation.h"

namespace obrin::test {
namespace {

TEST(ErrorBox, EndsTheMenuWithoutTheOrderlyClose) {
    const Installation installation(5);
    DeleteFileA("Updated.txt");
    CreateFolder("Updated.txt"); // running a program fails
    const RunningMenu menu;
    ASSERT_TRUE(installation.HostGetsLast("UB"));
    menu.Command(IDC_COMMAND1);
    EXPECT_NE(menu.Texts("ObrinMenu").find("Updated.txt"), std::string::npos) << menu.Texts("ObrinMenu");
    EXPECT_FALSE(IsWindowEnabled(menu.Window()));
    SendMessageA(menu.Window(), WM_CLOSE, 0, 0); // has no effect any more
    menu.Press("ObrinMenu", IDOK);
    EXPECT_EQ(menu.ExitCode(), 1);
    EXPECT_TRUE(installation.HostGetsLast("UB")) << "no exit command";
    EXPECT_TRUE(FileExists("Menu 5.txt"));
}

} // namespace
} // namespace obrin::test
