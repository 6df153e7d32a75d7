#include "menu/MenuCommands.h"

#include "menu/MenuFiles.h"
#include "platform/Handle.h"
#include "resources/Ids.h"

#include <gtest/gtest.h>

#include <array>

namespace obrin {
namespace {

// Returns a line for each item: its caption, and the program or document that it opens while UB.mnu is shown,
// or its number. The items of a popup follow its caption.
std::string ListItems(HMENU menu) {
    std::string lines;
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        std::array<char, 100> caption{};
        GetMenuStringA(menu, static_cast<UINT>(i), caption.data(), caption.size(), MF_BYPOSITION);
        const auto id = static_cast<int>(GetMenuItemID(menu, i));
        lines += caption.data();
        if (const HMENU popup = GetSubMenu(menu, i))
            lines += ":\n" + ListItems(popup);
        else if (const auto program = HostProgramOf(id))
            lines.append(" = ").append(*program).append("\n");
        else
            lines += " = " + DocumentOf(id, "UB.mnu", nullptr).value_or(std::to_string(id)) + "\n";
    }
    return lines;
}

UniqueMenu Load(int menu) {
    return UniqueMenu(LoadMenuA(Instance(), MAKEINTRESOURCEA(menu)));
}

TEST(MenuBar, HasTheseItemsInOrder) {
    const UniqueMenu bar = Load(IDR_MENU_BAR);
    FillSystemList(bar.get(), {{"UB.mnu", "Utility"}, {"PR.mnu", "Payroll"}});
    EXPECT_EQ(ListItems(bar.get()), R"(System List:
Utility = 400
Payroll = 401
&Core Programs:
&Backup = Core\Programs\CSBackup
&Restore = Core\Programs\CSRestore
 = 0
&Select Company = Core\Programs\SelCNo
&Copy Company = Core\Programs\CopyCNo
&Erase Company = Core\Programs\EraseCNo
 = 0
Redirected &Print = Core\Programs\RePrint
Apply Obrin &Updates = Core\Programs\Update\File
Print &Test = Core\Programs\PrintTest
&Help:
Core &Help = Help\Index.html
System &Help = Help\UB\Index.html
 = 0
Obrin &Website = Help\Obrin-Web.url
Obrin &User Website = Obrin-User.url
A&bout Obrin = 314
)");
}

TEST(MenuBar, HasNoSystemListIfThereAreNoSystems) {
    const UniqueMenu bar = Load(IDR_MENU_BAR);
    FillSystemList(bar.get(), {});
    EXPECT_TRUE(ListItems(bar.get()).starts_with("&Core Programs:"));
}

TEST(MenuBar, PopupOfTheTreeHasPropertiesAndHelp) {
    EXPECT_EQ(ListItems(Load(IDR_TREE_POPUP).get()), "TreeView Stuff:\n&Properties = 321\n&Help = 322\n");
}

} // namespace
} // namespace obrin
