// Compares showing a system, from its file to the painted tree, with inserting the same texts into another
// tree of the same size. Both trees are visible, and a run first removes the entries of the run before.

#include "Installation.h"
#include "Measurements.h"
#include "Table.h"

#include "menu/MenuDefinition.h"
#include "menu/MenuTree.h"
#include "platform/Events.h"
#include "platform/File.h"
#include "platform/Workstation.h"

#include <stdexcept>

namespace obrin::bench {

namespace {

constexpr int treeWidth = 380;
constexpr int treeHeight = 410;

HWND CreateTree(HWND frame, int left) {
    constexpr DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | TVS_HASLINES | TVS_LINESATROOT |
                            TVS_HASBUTTONS | TVS_SHOWSELALWAYS;
    return CreateWindowExA(WS_EX_CLIENTEDGE, WC_TREEVIEWA, "", style, left, 0, treeWidth, treeHeight, frame,
                           nullptr, nullptr, nullptr);
}

double ShowByMenu(MenuTree& tree) {
    ProcessPendingEvents();
    return MeasureTime([&] {
        tree.Clear();
        tree.Fill(ParseMenuDefinition(ReadFileBytes("UB.mnu"), CodePageLeadByteTest()).entries);
        UpdateWindow(tree.Window());
    });
}

// Inserts level by level, not in the order of the file: for 30,000 entries Wine then needs half the time.
double ShowByBareCalls(HWND tree, std::vector<Entry>& entries) {
    ProcessPendingEvents();
    std::vector<HTREEITEM> items(entries.size());
    return MeasureTime([&] {
        TVINSERTSTRUCTA insertion{};
        insertion.hInsertAfter = TVI_LAST;
        insertion.item.mask = TVIF_TEXT;
        SendMessageA(tree, WM_SETREDRAW, FALSE, 0);
        SendMessageA(tree, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
        for (int depth = 0; depth < 3; ++depth) {
            for (std::size_t i = 0; i < entries.size(); ++i) {
                Entry& entry = entries[i];
                if (entry.depth != depth)
                    continue;
                insertion.hParent = depth == 0 ? TVI_ROOT : items[static_cast<std::size_t>(entry.parent)];
                insertion.item.pszText = entry.text.data();
                items[i] = reinterpret_cast<HTREEITEM>(
                    SendMessageA(tree, TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insertion)));
            }
        }
        SendMessageA(tree, WM_SETREDRAW, TRUE, 0);
        InvalidateRect(tree, nullptr, TRUE);
        UpdateWindow(tree);
    });
}

void MeasureEntries(const char* what, int count, int runs, double target) {
    const test::ScratchFolder folder;
    std::vector<Entry> entries = MakeEntries(count);
    WriteFileBytes("UB.mnu", MenuFileText("Utility Billing", entries));

    const HWND frame =
        CreateWindowExA(0, WC_STATICA, "Obrin bench", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 0, 0,
                        2 * treeWidth + 40, treeHeight + 60, nullptr, nullptr, nullptr, nullptr);
    ShowWindow(frame, SW_SHOWNORMAL);
    MenuTree tree;
    tree.Attach(CreateTree(frame, 0), {});
    const HWND bareTree = CreateTree(frame, treeWidth);
    const Medians medians = MeasureAlternately(
        runs, [&] { return ShowByMenu(tree); }, [&] { return ShowByBareCalls(bareTree, entries); });
    const auto isComplete = [=](HWND window) { return SendMessageA(window, TVM_GETCOUNT, 0, 0) == count; };
    const bool areComplete = isComplete(tree.Window()) && isComplete(bareTree);
    DestroyWindow(frame);
    if (!areComplete)
        throw std::runtime_error("a tree is not complete");
    PrintRatio(what, "ms", medians, target);
}

} // namespace

void MeasureTree() {
    MeasureEntries("showing a system of 300 entries", 300, 101, 1.15);
    MeasureEntries("showing a system of 30,000 entries", 30'000, 21, 1.30);
}

} // namespace obrin::bench
