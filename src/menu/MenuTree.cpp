#include "menu/MenuTree.h"

#include "platform/Failure.h"

#include <algorithm>

namespace obrin {

namespace {

// The tree view's own macros for its messages have casts of the old style.
template <class Argument>
LRESULT Send(HWND tree, UINT message, WPARAM wParam, Argument* argument) {
    return SendMessageA(tree, message, wParam, reinterpret_cast<LPARAM>(argument));
}

// No repaint while a tree with thousands of nodes changes: each would cost one.
class RedrawPause {
public:
    explicit RedrawPause(HWND paused)
        : window(paused) {
        SendMessageA(window, WM_SETREDRAW, FALSE, 0);
    }
    RedrawPause(const RedrawPause&) = delete;
    RedrawPause& operator=(const RedrawPause&) = delete;
    ~RedrawPause() {
        SendMessageA(window, WM_SETREDRAW, TRUE, 0);
        InvalidateRect(window, nullptr, TRUE);
    }

private:
    HWND window;
};

} // namespace

void MenuTree::Clear() {
    const RedrawPause pause(window);
    Send(window, TVM_DELETEITEM, 0, TVI_ROOT);
    nodes.clear();
}

void MenuTree::Fill(std::vector<MenuEntry> entries) {
    nodes = std::move(entries);
    // Level by level, since a tree view may look for a node's parent in the order in which its nodes came:
    // with thousands of programs in front of the last headings, most of the time would go there.
    std::vector<std::size_t> depths(nodes.size() + 1); // by tree index, from 1; the root's is 0
    std::vector<std::vector<std::size_t>> levels;      // positions in `nodes`
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        const std::size_t depth = depths[static_cast<std::size_t>(nodes[i].parent)] + 1;
        depths[i + 1] = depth;
        levels.resize(std::max(levels.size(), depth));
        levels[depth - 1].push_back(i);
    }

    const RedrawPause pause(window);
    std::vector<HTREEITEM> items(nodes.size() + 1, TVI_ROOT); // by tree index
    for (const auto& level : levels) {
        for (const std::size_t i : level) {
            const MenuEntry& entry = nodes[i];
            TVINSERTSTRUCTA insertion{};
            insertion.hParent = items[static_cast<std::size_t>(entry.parent)];
            insertion.hInsertAfter = TVI_LAST;
            insertion.item.mask = TVIF_TEXT | TVIF_PARAM;
            insertion.item.pszText = const_cast<char*>(entry.text.c_str());
            insertion.item.lParam = static_cast<LPARAM>(i);
            items[i + 1] = reinterpret_cast<HTREEITEM>(Send(window, TVM_INSERTITEMA, 0, &insertion));
            if (items[i + 1] == nullptr)
                throw RunTimeError(ERROR_NOT_ENOUGH_MEMORY, "Adding " + entry.text + " to the tree");
        }
    }
    // A tree view selects its first node when it gets the keyboard; without a selection its keys do nothing.
    if (!nodes.empty() && GetFocus() == window)
        Send(window, TVM_SELECTITEM, TVGN_CARET, items[1]);
}

HTREEITEM MenuTree::Selected() const {
    return reinterpret_cast<HTREEITEM>(SendMessageA(window, TVM_GETNEXTITEM, TVGN_CARET, 0));
}

const MenuEntry* MenuTree::SelectedNode() const {
    const HTREEITEM selected = Selected();
    if (selected == nullptr)
        return nullptr;
    TVITEMA item{};
    item.mask = TVIF_PARAM;
    item.hItem = selected;
    Send(window, TVM_GETITEMA, 0, &item);
    return &nodes[static_cast<std::size_t>(item.lParam)];
}

const std::string& MenuTree::SelectedKey() const {
    static const std::string none;
    const MenuEntry* node = SelectedNode();
    return node == nullptr ? none : node->key;
}

bool MenuTree::IsProgramNode() const {
    const MenuEntry* node = SelectedNode();
    return node != nullptr && !node->text.empty() && !node->key.empty();
}

std::optional<RECT> MenuTree::ShowSelectedText() const {
    const HTREEITEM selected = Selected();
    if (selected == nullptr)
        return std::nullopt;
    SendMessageA(window, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(selected));
    // The message takes the item in the place where it leaves the rectangle.
    union {
        HTREEITEM item;
        RECT text;
    } position{selected};
    if (Send(window, TVM_GETITEMRECT, TRUE, &position) == 0)
        return std::nullopt;
    return position.text;
}

} // namespace obrin
