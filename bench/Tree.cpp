// Showing a system of 30,000 entries, from its file to the painted tree, against inserting the same texts
// into a tree of the same size. Both trees are visible and hold the last run's entries at first.

#include "Clock.h"
#include "Measurements.h"
#include "Scratch.h"

#include "menu/MenuDefinition.h"
#include "menu/MenuTree.h"
#include "platform/Events.h"
#include "platform/Failure.h"
#include "platform/File.h"
#include "platform/Workstation.h"

#include <algorithm>
#include <memory>
#include <stdexcept>

namespace obrin::bench {

namespace {

constexpr int entryCount = 30000;
constexpr int treeWidth = 380;
constexpr int treeHeight = 410;

struct CloseWindow {
    void operator()(HWND window) const { DestroyWindow(window); }
};
using UniqueWindow = std::unique_ptr<std::remove_pointer_t<HWND>, CloseWindow>;

UniqueWindow ShowFrame() {
    UniqueWindow frame(CreateWindowExA(0, WC_STATICA, "Obrin bench", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 0,
                                       0, 2 * treeWidth + 40, treeHeight + 60, nullptr, nullptr, nullptr,
                                       nullptr));
    ShowWindow(frame.get(), SW_SHOWNORMAL);
    return frame;
}

HWND CreateTree(HWND frame, int left) {
    constexpr DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | TVS_HASLINES | TVS_LINESATROOT |
                            TVS_HASBUTTONS | TVS_SHOWSELALWAYS;
    return CreateWindowExA(WS_EX_CLIENTEDGE, WC_TREEVIEWA, "", style, left, 0, treeWidth, treeHeight, frame,
                           nullptr, nullptr, nullptr);
}

double ShowByProduct(MenuTree& tree, const char* fileName) {
    return 1e3 * Timed([&] {
               tree.Clear();
               MenuDefinition definition =
                   ParseMenuDefinition(ReadFileBytes(fileName), CodePageLeadByteTest());
               tree.Fill(std::move(definition.entries));
               UpdateWindow(tree.Window());
           });
}

// The nodes of a level before those of the next: by far the fastest here, measured against the order of the
// file.
std::vector<std::size_t> LevelByLevel(const std::vector<MenuEntry>& entries) {
    std::vector<int> depths{0};
    std::vector<std::size_t> order;
    for (const MenuEntry& entry : entries) {
        order.push_back(order.size());
        depths.push_back(depths[static_cast<std::size_t>(entry.parent)] + 1);
    }
    std::ranges::stable_sort(order, {}, [&](std::size_t i) { return depths[i + 1]; });
    return order;
}

double ShowByBareCalls(HWND tree, const std::vector<MenuEntry>& entries) {
    std::vector<std::string> texts(entries.size());
    std::ranges::transform(entries, texts.begin(),
                           [](const MenuEntry& entry) { return std::string(entry.text); });
    const std::vector<std::size_t> order = LevelByLevel(entries);
    std::vector<HTREEITEM> items(entries.size() + 1, TVI_ROOT);
    return 1e3 * Timed([&] {
               SendMessageA(tree, WM_SETREDRAW, FALSE, 0);
               SendMessageA(tree, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
               TVINSERTSTRUCTA insertion{};
               insertion.hInsertAfter = TVI_LAST;
               insertion.item.mask = TVIF_TEXT;
               for (const std::size_t i : order) {
                   const auto parent = static_cast<std::size_t>(entries[i].parent);
                   insertion.hParent = items[parent];
                   insertion.item.pszText = texts[i].data();
                   items[i + 1] = reinterpret_cast<HTREEITEM>(
                       SendMessageA(tree, TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insertion)));
               }
               SendMessageA(tree, WM_SETREDRAW, TRUE, 0);
               InvalidateRect(tree, nullptr, TRUE);
               UpdateWindow(tree);
           });
}

Row MeasureShape(const char* what, int programs) {
    constexpr int runs = 21;
    constexpr const char* fileName = "UB.mnu";
    WriteFileBytes(fileName, MenuFileText("Utility Billing", entryCount, programs));
    const MenuDefinition definition = ParseMenuDefinition(ReadFileBytes(fileName), CodePageLeadByteTest());
    const std::vector<MenuEntry>& entries = definition.entries;

    const UniqueWindow frame = ShowFrame();
    MenuTree tree;
    tree.Attach(CreateTree(frame.get(), 0), {});
    const HWND bare = CreateTree(frame.get(), treeWidth);
    ProcessPendingEvents();
    ShowByProduct(tree, fileName); // the first runs start from an empty tree
    ShowByBareCalls(bare, entries);
    const Medians medians = Alternate(
        runs,
        [&] {
            ProcessPendingEvents();
            return ShowByProduct(tree, fileName);
        },
        [&] {
            ProcessPendingEvents();
            return ShowByBareCalls(bare, entries);
        });
    for (const HWND filled : {tree.Window(), bare}) {
        if (SendMessageA(filled, TVM_GETCOUNT, 0, 0) != entryCount)
            throw std::runtime_error("the tree is not complete");
    }
    return WithinRatio(what, "ms", medians, 1.10);
}

} // namespace

std::vector<Row> MeasureTree() {
    const ScratchFolder folder;
    return {MeasureShape("showing 30,000 entries, 9 below each heading", 9),
            MeasureShape("showing 30,000 entries, 2,999 below each heading", 2999),
            MeasureShape("showing 30,000 entries, all at top level", 0)};
}

} // namespace obrin::bench
