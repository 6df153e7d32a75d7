#include "menu/MenuTree.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

// "text=key" of each program and "text(...)" of each heading with what is below it, from this item on.
std::string Shape(const MenuTree& tree, HTREEITEM item) {
    std::string shape;
    for (; item != nullptr; item = TreeView_GetNextSibling(tree.Window(), item)) {
        char text[100] = "";
        TVITEMA query{};
        query.mask = TVIF_TEXT;
        query.hItem = item;
        query.pszText = text;
        query.cchTextMax = sizeof text;
        TreeView_GetItem(tree.Window(), &query);
        TreeView_SelectItem(tree.Window(), item);
        const std::string key(tree.SelectedKey());
        shape += text + (tree.IsProgramNode() ? "=" + key + " " : key);
        if (const HTREEITEM child = TreeView_GetChild(tree.Window(), item))
            shape += "(" + Shape(tree, child) + ")";
    }
    return shape;
}

TEST(MenuTree, HasTheEntriesInTheirOrderAndCollapsed) {
    const HWND window = CreateWindowExA(0, WC_TREEVIEWA, "", WS_POPUP | TVS_HASLINES, 0, 0, 200, 200, nullptr,
                                        nullptr, nullptr, nullptr);
    MenuTree tree;
    tree.Attach(window, {});
    for (int round = 0; round < 2; ++round) { // another system takes the place of the first
        tree.Clear();
        EXPECT_FALSE(tree.IsProgramNode());
        tree.Fill(ParseMenuDefinition("T\ra\r>b^K1\r>c\r>>d^K2\r>^K3\re^K4", "", nullptr));
        EXPECT_FALSE(tree.IsProgramNode()) << "nothing is selected";
        EXPECT_EQ(tree.SelectedKey(), "");
        const HTREEITEM a = TreeView_GetRoot(window);
        EXPECT_EQ(TreeView_GetNextVisible(window, a), TreeView_GetNextSibling(window, a)) << "collapsed";
        EXPECT_EQ(Shape(tree, a), "a(b=K1 c(d=K2 )K3)e=K4 ") << "K3 has no text: not a program's";
    }
    DestroyWindow(window);
}

} // namespace
} // namespace obrin
