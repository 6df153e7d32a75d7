#include "menu/MenuTree.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

class Tree : public testing::Test {
protected:
    Tree() {
        window = CreateWindowExA(0, WC_TREEVIEWA, "", WS_POPUP | TVS_HASLINES, 0, 0, 200, 200, nullptr,
                                 nullptr, nullptr, nullptr);
        tree.Attach(window);
    }
    ~Tree() override { DestroyWindow(window); }

    HTREEITEM Next(HTREEITEM item, WPARAM relation) const {
        return reinterpret_cast<HTREEITEM>(
            SendMessageA(window, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
    }
    std::string Text(HTREEITEM item) const {
        char text[100] = "";
        TVITEMA query{};
        query.mask = TVIF_TEXT;
        query.hItem = item;
        query.pszText = text;
        query.cchTextMax = sizeof text;
        SendMessageA(window, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&query));
        return text;
    }
    // "a(b c(d))"
    std::string Shape(HTREEITEM item) const {
        std::string shape;
        for (; item != nullptr; item = Next(item, TVGN_NEXT)) {
            shape += (shape.empty() ? "" : " ") + Text(item);
            if (const HTREEITEM child = Next(item, TVGN_CHILD))
                shape += "(" + Shape(child) + ")";
        }
        return shape;
    }
    void Select(HTREEITEM item) const {
        SendMessageA(window, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
    }

    HWND window;
    MenuTree tree;
};

TEST_F(Tree, HasTheEntriesInTheirOrderAndCollapsed) {
    const std::vector<MenuEntry> entries{{"a", "", 0},   {"b", "K1", 1}, {"c", "", 1},
                                         {"d", "K2", 3}, {"", "K3", 1},  {"e", "K4", 0}};
    for (int round = 0; round < 2; ++round) { // another system takes the place of the first
        tree.Clear();
        tree.Fill(entries);
        EXPECT_EQ(Shape(Next(nullptr, TVGN_ROOT)), "a(b c(d) ) e");
    }
    EXPECT_FALSE(tree.IsProgramNode()) << "nothing is selected";
    EXPECT_EQ(tree.SelectedKey(), "");
    const HTREEITEM a = Next(nullptr, TVGN_ROOT);
    EXPECT_EQ(Next(a, TVGN_NEXTVISIBLE), Next(a, TVGN_NEXT)) << "collapsed";

    const HTREEITEM b = Next(a, TVGN_CHILD);
    const HTREEITEM textless = Next(Next(b, TVGN_NEXT), TVGN_NEXT);
    struct {
        HTREEITEM item;
        const char* key;
        bool program;
    } const cases[] = {
        {a, "", false}, {b, "K1", true}, {textless, "K3", false}, {Next(a, TVGN_NEXT), "K4", true}};
    for (const auto& [item, key, program] : cases) {
        Select(item);
        EXPECT_EQ(tree.SelectedKey(), key);
        EXPECT_EQ(tree.IsProgramNode(), program) << key;
    }
    tree.Clear();
    EXPECT_FALSE(tree.IsProgramNode());
}

} // namespace
} // namespace obrin
