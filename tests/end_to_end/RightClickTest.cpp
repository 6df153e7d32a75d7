// The popup of a program in the tree: by a right click, and by the menu key.

#include "end_to_end/Input.h"

namespace obrin::test {
namespace {

// The tree has three rows: the heading Billing, the program Backup, and a program without a text, whose key
// is Core\Programs\CSBackup.
struct RightClick : testing::Test {
    RightClick() {
        SetEnvironmentVariableA("TesselTemp", ".");
        WriteFileBytes("UB.mnu", "T\r\nBilling\r\n>Post^P\r\nBackup^B\r\n^Core\\Programs\\CSBackup");
        menu.emplace();
        EXPECT_TRUE(installation.HostGetsLast("UB"));
        tree = menu->Tree();
        SetWindowPos(menu->Window(), HWND_TOP, 0, 0, 0, 0, SWP_NOSIZE); // so that the popup has room
        EXPECT_TRUE(KeepsForeground(menu->Window()));
    }

    HTREEITEM Heading() const { return TreeView_GetRoot(tree); }
    HTREEITEM Backup() const { return TreeView_GetNextSibling(tree, Heading()); }
    HTREEITEM WithoutText() const { return TreeView_GetNextSibling(tree, Backup()); }

    void PressMenuKeyOn(HTREEITEM item) const {
        TreeView_SelectItem(tree, item);
        PressKey(VK_APPS);
        EXPECT_TRUE(Eventually(ShownPopup));
    }

    // Allows for the height of a row.
    void ExpectPopupNear(POINT place) const {
        ASSERT_TRUE(Eventually(ShownPopup));
        RECT popup;
        GetWindowRect(ShownPopup(), &popup);
        EXPECT_NEAR(popup.left, place.x, TreeView_GetItemHeight(tree));
        EXPECT_NEAR(popup.top, place.y, TreeView_GetItemHeight(tree));
    }

    const Installation installation{5};
    std::optional<RunningMenu> menu;
    HWND tree = nullptr;
};

TEST_F(RightClick, SelectsAProgramAndOffersThePopupAtThePointer) {
    ClickRow(tree, 1, 0, rightClick);
    ExpectPopupNear(PlaceOfRow(tree, 1, 0));
    EXPECT_EQ(TreeView_GetSelection(tree), Backup());
    PressKey(VK_ESCAPE);
}

TEST_F(RightClick, SelectsAHeadingWithoutAPopup) {
    TreeView_SelectItem(tree, Backup());
    ClickRow(tree, 0, 0, rightClick);
    EXPECT_TRUE(Eventually([&] { return TreeView_GetSelection(tree) == Heading(); }));
    PressKey(VK_DOWN); // a popup would take the key
    EXPECT_TRUE(Eventually([&] { return TreeView_GetSelection(tree) == Backup(); }));
    EXPECT_FALSE(ShownPopup());
}

TEST_F(RightClick, WithThePointerOutsideTheTreeDoesNotDisturbTheNextOne) {
    PointAt({0, 0});
    SendMessageA(tree, WM_RBUTTONDOWN, MK_RBUTTON, 0);
    ClickRow(tree, 1, 0, rightClick);
    ExpectPopupNear(PlaceOfRow(tree, 1, 0));
    EXPECT_EQ(TreeView_GetSelection(tree), Backup());
    PressKey(VK_ESCAPE);
}

TEST_F(RightClick, HelpIsNotAvailable) {
    PressMenuKeyOn(Backup());
    PressKey('H');
    EXPECT_NE(menu->Texts("Warning").find("Option not available. In Developement."), std::string::npos);
    EXPECT_FALSE(IsWindowEnabled(menu->Window()));
    menu->Press("Warning", IDOK);
}

TEST_F(RightClick, PropertiesShowTheSettingsOfTheProgramEvenIfItHasNoText) {
    PressMenuKeyOn(WithoutText());
    PressKey('P');
    EXPECT_EQ(GetWindow(menu->Window("Properties"), GW_OWNER), menu->Window());
    EXPECT_TRUE(FileExists("Ini\\Core\\Programs\\CSBackup.ini"));
}

} // namespace
} // namespace obrin::test
