// The tree of one system: a stock tree view, the keys of its nodes, and what the operator does to it.
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
        std::function<void()> run;           ///< the selected program: Enter, or a double click
        std::function<void(int, int)> popUp; ///< of the selected program, at a place of the screen
    };

    MenuTree() = default;
    MenuTree(const MenuTree&) = delete;
    MenuTree& operator=(const MenuTree&) = delete;

    /// Takes over an existing tree view; its window is owned by its parent, and this object outlives it.
    void Attach(HWND treeView, Events treeEvents);
    HWND Window() const { return window; }

    /// Empties the tree.
    void Clear();
    /// Fills the empty tree, all nodes collapsed. Throws RunTimeError when the tree takes no more.
    void Fill(std::vector<MenuEntry> entries);

    /// The key of the selected node; empty for a heading and without a selection.
    std::string_view SelectedKey() const;
    /// True when the selected node has a text and a key.
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
    WNDPROC ownProcedure = nullptr; // the stock tree view's
    Events events;
    std::optional<DWORD> rightClickLatch; // set while clicks put in by the menu are to come: since when, ms
    std::vector<MenuEntry> nodes;         // an item's lParam is its entry's position here
};

} // namespace obrin
