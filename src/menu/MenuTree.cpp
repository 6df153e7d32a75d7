#include "menu/MenuTree.h"

#include "platform/Failure.h"

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

void MenuTree::Fill(const std::vector<MenuEntry>& entries) {
    struct Placed {
        HTREEITEM item;
        HTREEITEM lastChild;
    };
    const RedrawPause pause(window);
    nodes.reserve(entries.size());
    // By tree index, from 1. Each node goes behind its parent's last child, which is known here: looking for
    // the end of a long list of siblings at every node would take quadratic time.
    std::vector<Placed> placed{{TVI_ROOT, TVI_FIRST}};
    placed.reserve(entries.size() + 1);
    for (const MenuEntry& entry : entries) {
        Placed& parent = placed[static_cast<std::size_t>(entry.parent)];
        TVINSERTSTRUCTA insertion{};
        insertion.hParent = parent.item;
        insertion.hInsertAfter = parent.lastChild;
        insertion.item.mask = TVIF_TEXT | TVIF_PARAM;
        insertion.item.pszText = const_cast<char*>(entry.text.c_str());
        insertion.item.lParam = static_cast<LPARAM>(nodes.size());
        const auto item = reinterpret_cast<HTREEITEM>(Send(window, TVM_INSERTITEMA, 0, &insertion));
        if (item == nullptr)
            throw RunTimeError(ERROR_NOT_ENOUGH_MEMORY, "Adding " + entry.text + " to the tree");
        parent.lastChild = item;
        placed.push_back({item, TVI_FIRST});
        nodes.push_back({.key = entry.key, .hasText = !entry.text.empty()});
    }
}

HTREEITEM MenuTree::Selected() const {
    return reinterpret_cast<HTREEITEM>(SendMessageA(window, TVM_GETNEXTITEM, TVGN_CARET, 0));
}

const MenuTree::Node* MenuTree::SelectedNode() const {
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
    const Node* node = SelectedNode();
    return node == nullptr ? none : node->key;
}

bool MenuTree::IsProgramNode() const {
    const Node* node = SelectedNode();
    return node != nullptr && node->hasText && !node->key.empty();
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
