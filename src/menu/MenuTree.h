// The tree of one system: a stock tree view and the keys of its nodes.
#pragma once

#include "menu/MenuDefinition.h"
#include "platform/WindowsApi.h"

#include <optional>
#include <string>
#include <vector>

namespace obrin {

class MenuTree {
public:
    /// Takes over an existing tree view; its window is owned by its parent.
    void Attach(HWND treeView) { window = treeView; }
    HWND Window() const { return window; }

    /// Empties the tree.
    void Clear();
    /// Fills the empty tree, all nodes collapsed. Throws RunTimeError when the tree takes no more.
    void Fill(std::vector<MenuEntry> entries);

    /// The key of the selected node; empty for a heading and without a selection.
    const std::string& SelectedKey() const;
    /// True when the selected node has a text and a key.
    bool IsProgramNode() const;
    /// Brings the selected node into sight and tells where its text stands, in the tree's own pixels; nothing
    /// without a selection.
    std::optional<RECT> ShowSelectedText() const;

private:
    HTREEITEM Selected() const;
    const MenuEntry* SelectedNode() const;

    HWND window = nullptr;
    std::vector<MenuEntry> nodes; // an item's lParam is its position here
};

} // namespace obrin
