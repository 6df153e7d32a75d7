#include "menu/MenuTree.h"

#include "platform/Failure.h"

namespace obrin {

namespace {

// The TreeView_... macros of Windows contain C casts, which our warnings forbid.
template <class Argument>
LRESULT Send(HWND tree, UINT message, WPARAM wParam, Argument* argument) {
    return SendMessageA(tree, message, wParam, reinterpret_cast<LPARAM>(argument));
}

// Turns repainting off while the tree changes. Otherwise each of thousands of nodes would cause a repaint.
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
    const RedrawPause pause(window);
    std::vector<HTREEITEM> items(nodes.size() + 1, TVI_ROOT); // by tree index
    TVINSERTSTRUCTA insertion{};
    insertion.hInsertAfter = TVI_LAST;
    insertion.item.mask = TVIF_TEXT | TVIF_PARAM;
    // Inserts level by level: Wine needs twice as long to insert in the order of the file.
    for (std::size_t depth = 0, inserted = 0; inserted < nodes.size(); ++depth) {
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            if (nodes[i].depth != depth)
                continue;
            ++inserted;
            insertion.hParent = items[static_cast<std::size_t>(nodes[i].parent)];
            insertion.item.pszText = nodes[i].text.data();
            insertion.item.lParam = static_cast<LPARAM>(i);
            items[i + 1] = reinterpret_cast<HTREEITEM>(
                CallOriginal(TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insertion)));
            if (items[i + 1] == nullptr)
                throw RunTimeError(ERROR_NOT_ENOUGH_MEMORY, "Adding " + nodes[i].text + " to the tree");
        }
    }
    // A tree view selects its first node when it gets the focus. If it has the focus already, nothing is
    // selected, and the arrow keys would not work.
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

std::string_view MenuTree::SelectedKey() const {
    const MenuEntry* node = SelectedNode();
    return node == nullptr ? std::string_view() : node->key;
}

bool MenuTree::IsProgramNode() const {
    const MenuEntry* node = SelectedNode();
    return node != nullptr && !node->text.empty() && !node->key.empty();
}

// --- Events ---

void MenuTree::Attach(HWND treeView, Events treeEvents) {
    window = treeView;
    events = std::move(treeEvents);
    SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    // SetWindowSubclass would make filling a large tree several times slower.
    originalProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure)));
}

LRESULT CALLBACK MenuTree::Procedure(HWND tree, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    auto* self = reinterpret_cast<MenuTree*>(GetWindowLongPtrA(tree, GWLP_USERDATA));
    return RunOrEndProgram([=] { return self->OnMessage(message, wParam, lParam); });
}

LRESULT MenuTree::CallOriginal(UINT message, WPARAM wParam, LPARAM lParam) {
    return CallWindowProcW(originalProcedure, window, message, wParam, lParam);
}

LRESULT MenuTree::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_GETDLGCODE: {
        // The tree itself handles Enter, not the default button.
        const auto* key = reinterpret_cast<const MSG*>(lParam);
        const LRESULT code = CallOriginal(message, wParam, lParam);
        return key != nullptr && key->wParam == VK_RETURN ? code | DLGC_WANTMESSAGE : code;
    }
    case WM_CHAR:
        if (wParam != VK_RETURN)
            break;
        events.run();
        return 0; // the tree would beep
    case WM_LBUTTONDBLCLK: {
        const LRESULT result = CallOriginal(message, wParam, lParam);
        events.run();
        return result;
    }
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
        RightMouseDown();
        return 0;
    case WM_CONTEXTMENU:
        if (lParam == -1)
            OpenPopupByKeyboard();
        else if (SendMessageA(window, WM_NCHITTEST, 0, lParam) != HTCLIENT)
            break; // a scroll bar has its own popup menu
        return 0;  // nothing to do after a click: RightMouseDown has handled it
    default:
        break;
    }
    return CallOriginal(message, wParam, lParam);
}

void MenuTree::RightMouseDown() {
    POINT pointer;
    GetCursorPos(&pointer);
    if (rightClickLatch) {
        const auto age = static_cast<LONG>(static_cast<DWORD>(GetMessageTime()) - *rightClickLatch);
        if (age < 0)
            return; // a real click from before the synthetic ones, which have not arrived yet
        rightClickLatch.reset();
        if (static_cast<DWORD>(age) <= GetDoubleClickTime()) {
            events.popUp(pointer.x, pointer.y);
            return;
        }
    }
    // The synthetic clicks go to the current position of the pointer. It may have left the tree since the
    // operator clicked, or be over a scroll bar.
    if (WindowFromPoint(pointer) != window ||
        SendMessageA(window, WM_NCHITTEST, 0, MAKELPARAM(pointer.x, pointer.y)) != HTCLIENT)
        return;
    rightClickLatch = GetTickCount();
    // The synthetic left click selects the node under the pointer. The right click calls this handler again.
    constexpr DWORD left = MOUSEEVENTF_LEFTDOWN | MOUSEEVENTF_LEFTUP;
    constexpr DWORD right = MOUSEEVENTF_RIGHTDOWN | MOUSEEVENTF_RIGHTUP;
    // The flags mean the physical buttons. Windows can swap them for left-handed users.
    const bool swapped = GetSystemMetrics(SM_SWAPBUTTON) != 0;
    mouse_event(swapped ? right : left, 0, 0, 0, 0);
    mouse_event(swapped ? left : right, 0, 0, 0, 0);
}

// Scrolls to the selected node and asks for the popup menu below it.
void MenuTree::OpenPopupByKeyboard() {
    const HTREEITEM selected = Selected();
    if (selected == nullptr)
        return;
    SendMessageA(window, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(selected));
    // TVM_GETITEMRECT reads the item from the memory into which it writes the rectangle.
    union {
        HTREEITEM item;
        RECT text;
    } position{selected};
    if (Send(window, TVM_GETITEMRECT, TRUE, &position) == 0)
        return;
    POINT below{position.text.left, position.text.bottom};
    ClientToScreen(window, &below);
    events.popUp(below.x, below.y);
}

} // namespace obrin
