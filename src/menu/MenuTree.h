// Shows the tree of one system in a stock tree view and handles the operator's actions on it.
#pragma once

#include "menu/MenuDefinition.h"
#include "platform/WindowsApi.h"

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace obrin {

class MenuTree {
public:
    struct Events {
        std::function<void()> run;           ///< should run the selected program
        std::function<void(int, int)> popUp; ///< should open the popup menu at x, y (screen coordinates)
    };

    MenuTree() = default;
    MenuTree(const MenuTree&) = delete;
    MenuTree& operator=(const MenuTree&) = delete;

    /// Subclasses an existing tree view. This object must live longer than the tree view.
    void Attach(HWND treeView, Events treeEvents);
    HWND Window() const { return window; }

    /// Removes all nodes.
    void Clear();
    /// Fills the empty tree with collapsed nodes. Throws RunTimeError if a node cannot be added.
    void Fill(std::vector<MenuEntry> entries);

    /// Returns the key of the selected node. It is empty for a heading or without a selection.
    std::string_view SelectedKey() const;
    /// Returns whether the selected node has a text and a key.
    bool IsProgramNode() const;

private:
    static LRESULT CALLBACK Procedure(HWND tree, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT CallOriginal(UINT message, WPARAM wParam, LPARAM lParam);
    void RightMouseDown();
    void OpenPopupByKeyboard();

    HTREEITEM Selected() const;
    const MenuEntry* SelectedNode() const;

    HWND window = nullptr;
    WNDPROC originalProcedure = nullptr;
    Events events;
    std::optional<DWORD> rightClickLatch; // when RightMouseDown sent its clicks (ms), until they arrive
    std::vector<MenuEntry> nodes;         // the lParam of a tree item is an index into it
};

} // namespace obrin
