// What the items of the menu bar do; tests/menu/MenuBarTest.cpp has the list of them.

#include "end_to_end/MenuHere.h"

namespace obrin::test {
namespace {

TEST(MenuBarCommands, OpenTheAboutBoxOverTheMenu) {
    const Installation installation(5);
    const RunningMenu menu;
    menu.Command(ID_ABOUT);
    EXPECT_EQ(GetWindow(menu.Window("Obrin Software Systems"), GW_OWNER), menu.Window());
    EXPECT_FALSE(IsWindowEnabled(menu.Window()));
}

TEST_F(MenuHere, OpensTheHelpOfTheShownSystem) {
    SendMessageA(window, WM_COMMAND, ID_SYSTEM_HELP, 0);
    EXPECT_EQ(OpenedDocuments(), Lines{"Help\\UB\\Index.html"});
}

} // namespace
} // namespace obrin::test
