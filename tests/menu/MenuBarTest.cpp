#include "platform/WindowsApi.h"
#include "resources/Ids.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace obrin {
namespace {

using Lines = std::vector<std::string>;

// One line for each item, indented below its menu: its caption and its number. "-" is a separator.
void List(HMENU menu, const std::string& indent, Lines& lines) {
    for (UINT i = 0; i < static_cast<UINT>(GetMenuItemCount(menu)); ++i) {
        std::array<char, 100> caption{};
        GetMenuStringA(menu, i, caption.data(), caption.size(), MF_BYPOSITION);
        const HMENU popup = GetSubMenu(menu, static_cast<int>(i));
        if (popup != nullptr) {
            lines.push_back(indent + caption.data());
            List(popup, indent + "  ", lines);
        } else if ((GetMenuState(menu, i, MF_BYPOSITION) & MF_SEPARATOR) != 0) {
            lines.push_back(indent + "-");
        } else {
            lines.push_back(indent + caption.data() + " " +
                            std::to_string(GetMenuItemID(menu, static_cast<int>(i))));
        }
    }
}

Lines Listed(int resource) {
    const HMENU menu = LoadMenuA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(resource));
    Lines lines;
    List(menu, "", lines);
    DestroyMenu(menu);
    return lines;
}

std::string Item(const char* caption, int id) {
    return "  " + std::string(caption) + " " + std::to_string(id);
}

TEST(MenuBar, HasItsMenusInOrder) {
    EXPECT_EQ(Listed(IDR_MENU_BAR), (Lines{
                                        "System List",
                                        Item("Dummy for Load", ID_SYSTEMS_TEMPLATE),
                                        "&Core Programs",
                                        Item("&Backup", ID_BACKUP),
                                        Item("&Restore", ID_RESTORE),
                                        "  -",
                                        Item("&Select Company", ID_SELECT_CO),
                                        Item("&Copy Company", ID_COPY_CO),
                                        Item("&Erase Company", ID_ERASE_CO),
                                        "  -",
                                        Item("Redirected &Print", ID_REDIRECT_PRINT),
                                        Item("Apply Obrin &Updates", ID_UPDATE),
                                        Item("Print &Test", ID_PRINT_TEST),
                                        "&Help",
                                        Item("Core &Help", ID_CORE_HELP),
                                        Item("System &Help", ID_SYSTEM_HELP),
                                        "  -",
                                        Item("Obrin &Website", ID_WEBSITE),
                                        Item("Obrin &User Website", ID_USER_SITE),
                                        Item("A&bout Obrin", ID_ABOUT),
                                    }));
}

TEST(MenuBar, TreeHasItsPopup) {
    EXPECT_EQ(Listed(IDR_TREE_POPUP), (Lines{"TreeView Stuff", Item("&Properties", ID_TREE_PROPERTIES),
                                             Item("&Help", ID_TREE_HELP)}));
}

} // namespace
} // namespace obrin
