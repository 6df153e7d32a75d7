// Choosing a system, and which system the menu shows at its start.

#include "end_to_end/Input.h"

#include "menu/MenuFiles.h"

#include <algorithm>

namespace obrin::test {
namespace {

// Two systems: Utility Billing (UB.mnu), which the start shows, and Zoning (ZZ.mnu).
struct Systems : testing::Test {
    Systems() {
        WriteFileBytes("ZZ.mnu", "  Zoning  ^x\r\nFirst^ZZ\\One\r\nNext^ZZ\\Two\r\nLast^K\r\n");
        RememberSystem("UB.mnu");
        menu.emplace();
        EXPECT_TRUE(installation.HostGetsLast("UB"));
    }

    void Choose(const char* file) const {
        const auto files = EnumerateMenuFiles(); // in the order of the system list
        const auto index = std::ranges::find(files, file, &MenuFile::name) - files.begin();
        menu->Command(ID_SYSTEMS + static_cast<int>(index));
        EXPECT_TRUE(installation.HostGetsLast(std::string(file, 2)));
    }

    const Installation installation{5};
    std::optional<RunningMenu> menu;
};

TEST_F(Systems, ChosenOneIsShownAndStartedInTheHost) {
    Choose("ZZ.mnu");
    EXPECT_EQ(installation.Logged("line"),
              (Lines{"LOAD CORE\\STARTSYS", "RUN", "UB", "LOAD CORE\\STARTSYS", "RUN", "ZZ"}));
    EXPECT_EQ(TextOf(GetDlgItem(menu->Window(), IDC_LABEL1)), "Zoning") << "without the blanks";
    EXPECT_EQ(TextOf(GetDlgItem(menu->Window(), IDC_FRAME1)), "Zoning");
    EXPECT_EQ(TreeView_GetCount(menu->Tree()), 3U);
    Choose("UB.mnu");
}

TEST_F(Systems, TreeOfTheChosenOneKeepsTheKeyboard) {
    Choose("ZZ.mnu");
    const HWND tree = menu->Tree();
    EXPECT_TRUE(KeepsForeground(menu->Window()));
    PressKey(VK_DOWN);
    EXPECT_TRUE(Eventually([&] {
        return TreeView_GetSelection(tree) == TreeView_GetNextSibling(tree, TreeView_GetRoot(tree));
    })) << "the selection must move from the first node to the second";
}

TEST_F(Systems, ShownOneIsRememberedAtTheEnd) {
    Choose("ZZ.mnu");
    menu->Close();
    EXPECT_EQ(menu->ExitCode(), 0);
    ExpectRemembered("ZZ.mnu");
}

TEST(TitleWithMnemonic, IsShownWithoutItAndTakesNoKey) {
    const Installation installation(5);
    WriteFileBytes("UB.mnu", "R&&D of &Core\r\nA^K\r\n");
    const RunningMenu menu;
    ASSERT_TRUE(installation.HostGetsLast("UB"));
    EXPECT_EQ(TextOf(GetDlgItem(menu.Window(), IDC_LABEL1)), "R&D of Core");
    EXPECT_EQ(TextOf(menu.Tree()), "R&D of Core") << "for screen readers";
    EXPECT_EQ(TextOf(GetDlgItem(menu.Window(), IDC_FRAME1)), "R&&D of Core")
        << "a group box shows this as one &";
    EXPECT_TRUE(KeepsForeground(menu.Window()));
    PressWithAlt('C');
    EXPECT_TRUE(Eventually(ShownPopup)) << "Core Programs opens";
    PressKey(VK_ESCAPE);
    PressKey(VK_ESCAPE);
}

TEST(RememberedSystem, IsShownIfItIsAFile) {
    if (!MayRememberSystem())
        GTEST_SKIP() << "this user may not write the menu's key of the registry";
    const Installation installation(5);
    WriteFileBytes("AA.mnu", "Assets\r\n");
    WriteFileBytes("Ledger.txt", "General Ledger\r\n");
    const std::string first = EnumerateMenuFiles().front().name.substr(0, 2);
    struct {
        const char* remembered;
        std::string code;
        const char* reason;
    } const cases[] = {
        {"Ledger.txt", "LE", "a file of any name is shown"},
        {" Ledger.txt ", "LE", "blanks are removed"},
        {"gone.mnu", first, "no such file"},
        {"Core", first, "a folder"},
        {"*.mnu", first, "a pattern, not a name"},
    };
    for (const auto& [remembered, code, reason] : cases) {
        RememberSystem(remembered);
        const RunningMenu menu;
        EXPECT_TRUE(menu.Window());
        EXPECT_TRUE(installation.HostGetsLast(code)) << reason;
        installation.EndHost();
    }
}

} // namespace
} // namespace obrin::test
