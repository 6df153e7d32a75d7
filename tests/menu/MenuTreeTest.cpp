#include "menu/MenuTree.h"

#include <gtest/gtest.h>

#include <array>

namespace obrin {
namespace {

using Place = std::pair<int, int>;

class Tree : public testing::Test {
protected:
    Tree() {
        tree.Attach(window, {.run = {}, .popUp = [this](int x, int y) { popUps.emplace_back(x, y); }});
        ShowWindow(window, SW_SHOWNOACTIVATE);
        SetCursorPos(20, 30);
    }
    ~Tree() override { DestroyWindow(window); }

    /// Shows a system with these entries.
    void Fill(const std::string& entries) {
        tree.Clear();
        tree.Fill(ParseMenuDefinition("Title\r" + entries, nullptr).entries);
    }
    HTREEITEM First() const { return TreeView_GetRoot(window); }
    void Select(HTREEITEM node) const { TreeView_SelectItem(window, node); }

    /// Discards the synthetic clicks of an earlier press, and then presses the right button.
    void RightClick() const {
        MSG message;
        while (PeekMessageA(&message, nullptr, WM_MOUSEFIRST, WM_MOUSELAST, PM_REMOVE))
            continue;
        PostMessageA(window, WM_APP, 0, 0);
        PeekMessageA(&message, nullptr, WM_APP, WM_APP, PM_REMOVE); // sets GetMessageTime for the press
        SendMessageA(window, WM_RBUTTONDOWN, 0, 0);
    }

    const HWND window = CreateWindowExA(WS_EX_TOPMOST, WC_TREEVIEWA, "", WS_POPUP | TVS_HASLINES, 0, 0, 200,
                                        50, nullptr, nullptr, nullptr, nullptr);
    MenuTree tree;
    std::vector<Place> popUps; // the positions at which the tree asked for the popup
};

TEST_F(Tree, PutsEntriesBelowTheirHeadings) {
    Fill("Billing\r>Post^K1\r>Reports\r>>Journal^K2\rBackup^K3");
    const HTREEITEM post = TreeView_GetChild(window, First());
    const HTREEITEM journal = TreeView_GetChild(window, TreeView_GetNextSibling(window, post));
    const HTREEITEM backup = TreeView_GetNextSibling(window, First());
    for (const auto& [node, key] : {std::pair{post, "K1"}, {journal, "K2"}, {backup, "K3"}}) {
        Select(node);
        EXPECT_EQ(tree.SelectedKey(), key);
    }
}

TEST_F(Tree, HoldsOneSystemAtATime) {
    Fill("Billing\r>Post^K1");
    Fill("Zoning^K2");
    EXPECT_EQ(TreeView_GetCount(window), 1U);
}

TEST_F(Tree, IsCollapsedAndWithoutASelectionAtFirst) {
    Fill("Billing\r>Post^K1");
    EXPECT_EQ(TreeView_GetNextVisible(window, First()), nullptr);
    EXPECT_EQ(TreeView_GetSelection(window), nullptr);
    EXPECT_EQ(tree.SelectedKey(), "");
}

TEST_F(Tree, IsRepaintedAfterItIsFilled) {
    UpdateWindow(window);
    Fill("Backup^K");
    EXPECT_TRUE(GetUpdateRect(window, nullptr, FALSE));
}

TEST_F(Tree, NodesWithTextAndKeyArePrograms) {
    for (const auto& [entry, isProgram] : {std::pair{"Backup^K", true}, {"Heading", false}, {"^K", false}}) {
        Fill(entry);
        EXPECT_FALSE(tree.IsProgramNode()) << "nothing is selected";
        Select(First());
        EXPECT_EQ(tree.IsProgramNode(), isProgram) << entry;
    }
}

TEST_F(Tree, MenuKeyAsksForThePopupBelowTheSelectedNode) {
    Fill("A^1\rB^2\rC^3\rD^4\rE^5\rZ^6"); // more nodes than fit
    Select(First());
    SendMessageA(window, WM_CHAR, 'z', 1);       // selects the node that begins with Z
    SendMessageA(window, WM_VSCROLL, SB_TOP, 0); // scrolls the node out of view
    SendMessageA(window, WM_CONTEXTMENU, 0, -1);
    union {
        HTREEITEM item;
        RECT text;
    } place{TreeView_GetSelection(window)};
    SendMessageA(window, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&place));
    EXPECT_LE(place.text.bottom, 50) << "the node must be scrolled into view";
    EXPECT_EQ(popUps, (std::vector<Place>{{place.text.left, place.text.bottom}}));
}

// At the first click, the tree makes two synthetic ones: a left click, which selects the node, and a right
// one.
TEST_F(Tree, EverySecondRightClickAsksForThePopupAtThePointer) {
    RightClick();
    EXPECT_TRUE(popUps.empty());
    RightClick();
    EXPECT_EQ(popUps, (std::vector<Place>{{20, 30}}));
    RightClick();
    EXPECT_EQ(popUps.size(), 1U) << "the third click is a first one again";
}

TEST_F(Tree, LateRightClickCountsAsAFirstOne) {
    RightClick();
    Sleep(GetDoubleClickTime() + 50); // as if the synthetic clicks had got lost
    RightClick();
    EXPECT_TRUE(popUps.empty());
}

} // namespace
} // namespace obrin
