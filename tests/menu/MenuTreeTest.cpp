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

TEST(MenuTree, HasTheEntriesInTheirOrderAndOffersThePopupOfOne) {
    const HWND window = CreateWindowExA(WS_EX_TOPMOST, WC_TREEVIEWA, "", WS_POPUP | TVS_HASLINES, 0, 0, 200,
                                        50, nullptr, nullptr, nullptr, nullptr);
    MenuTree tree;
    std::vector<int> popUps;
    tree.Attach(window, {.run = {}, .popUp = [&](int x, int y) { popUps.push_back(1000 * x + y); }});
    ShowWindow(window, SW_SHOWNOACTIVATE);
    for (int round = 0; round < 2; ++round) { // another system takes the place of the first
        tree.Clear();
        UpdateWindow(window);
        EXPECT_FALSE(tree.IsProgramNode());
        tree.Fill(ParseMenuDefinition("T\ra\r>b^K1\r>\xE4\r>>d^K2\r>^K3\re^K4", nullptr).entries);
        EXPECT_TRUE(GetUpdateRect(window, nullptr, FALSE)) << "painted anew";
        EXPECT_TRUE(!tree.IsProgramNode() && tree.SelectedKey().empty());
        EXPECT_EQ(TreeView_GetSelection(window), nullptr) << "without the keyboard";
        const HTREEITEM a = TreeView_GetRoot(window);
        EXPECT_EQ(TreeView_GetNextVisible(window, a), TreeView_GetNextSibling(window, a)) << "collapsed";
        EXPECT_EQ(Shape(tree, a), "a(b=K1 \xE4(d=K2 )K3)e=K4 ") << "K3 has no text: not a program's";
    }
    TreeView_SelectItem(window, TreeView_GetRoot(window));
    SendMessageA(window, WM_CHAR, 'e', 1);
    EXPECT_EQ(tree.SelectedKey(), "K4") << "found by its letter";
    SendMessageA(window, WM_VSCROLL, SB_TOP, 0); // away from the last one, which is selected
    SendMessageA(window, WM_CONTEXTMENU, 0, -1);
    ASSERT_EQ(popUps.size(), 1U);
    union {
        HTREEITEM item;
        RECT text;
    } last{TreeView_GetSelection(window)};
    SendMessageA(window, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&last));
    EXPECT_LE(last.text.bottom, 50) << "in sight";
    EXPECT_EQ(popUps[0], 1000 * last.text.left + last.text.bottom);
    SetCursorPos(20, 30);
    const UINT late = GetDoubleClickTime() + 50; // too late for the click before
    for (const auto& [pause, click, shown] : {std::tuple{0U, WM_RBUTTONDOWN, 1U},
                                              {late, WM_RBUTTONDOWN, 1U},
                                              {0U, WM_RBUTTONDBLCLK, 2U},
                                              {0U, WM_RBUTTONDOWN, 2U}}) {
        Sleep(pause);
        MSG message;
        while (PeekMessageA(&message, nullptr, WM_MOUSEFIRST, WM_MOUSELAST, PM_REMOVE))
            continue; // the clicks that were put in get lost
        PostMessageA(window, WM_APP, 0, 0);
        PeekMessageA(&message, nullptr, WM_APP, WM_APP, PM_REMOVE); // whose time is now
        SendMessageA(window, static_cast<UINT>(click), 0, 0);
        EXPECT_EQ(popUps.size(), shown) << pause;
    }
    EXPECT_EQ(popUps[1], 20'030) << "at the pointer";
    DestroyWindow(window);
}

} // namespace
} // namespace obrin
