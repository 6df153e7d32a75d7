#include "menu/MenuCommands.h"

#include "resources/Ids.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

struct Item {
    int id;
    const char* program;
    const char* document; // while UB.mnu is shown
};

constexpr Item items[] = {
    {ID_BACKUP, "Core\\Programs\\CSBackup", nullptr},
    {ID_RESTORE, "Core\\Programs\\CSRestore", nullptr},
    {ID_SELECT_CO, "Core\\Programs\\SelCNo", nullptr},
    {ID_COPY_CO, "Core\\Programs\\CopyCNo", nullptr},
    {ID_ERASE_CO, "Core\\Programs\\EraseCNo", nullptr},
    {ID_REDIRECT_PRINT, "Core\\Programs\\RePrint", nullptr},
    {ID_UPDATE, "Core\\Programs\\Update\\File", nullptr},
    {ID_PRINT_TEST, "Core\\Programs\\PrintTest", nullptr},
    {ID_CORE_HELP, nullptr, "Help\\Index.html"},
    {ID_SYSTEM_HELP, nullptr, "Help\\UB\\Index.html"},
    {ID_WEBSITE, nullptr, "Help\\Obrin-Web.url"},
    {ID_USER_SITE, nullptr, "Obrin-User.url"},
    {IDC_LABEL5, nullptr, "Help\\BetterIdea.url"},
    // With handlers of their own, or with none.
    {ID_ABOUT, nullptr, nullptr},
    {ID_SYSTEMS, nullptr, nullptr},
    {IDC_LABEL4, nullptr, nullptr},
    {0, nullptr, nullptr},
};

TEST(MenuCommands, EveryItemHasItsProgramOrDocument) {
    for (const auto& [id, program, document] : items) {
        EXPECT_EQ(HostProgramOf(id).value_or("none"), program != nullptr ? program : "none") << id;
        EXPECT_EQ(DocumentOf(id, "UB").value_or("none"), document != nullptr ? document : "none") << id;
    }
}

TEST(MenuCommands, SystemHelpFollowsTheSystem) {
    EXPECT_EQ(DocumentOf(ID_SYSTEM_HELP, "WA"), "Help\\WA\\Index.html");
    EXPECT_EQ(DocumentOf(ID_SYSTEM_HELP, "*"), "Help\\*\\Index.html");
}

} // namespace
} // namespace obrin
