#include "menu/MenuCommands.h"

#include "resources/Ids.h"
#include "support/CodePage.h"

#include <gtest/gtest.h>

namespace obrin {

// MenuBarTest.cpp tests the program or document of every item of the menu bar.

TEST(HostProgramOf, IsNothingForAnItemThatOpensADocument) {
    EXPECT_EQ(HostProgramOf(ID_BACKUP), "Core\\Programs\\CSBackup");
    EXPECT_EQ(HostProgramOf(ID_CORE_HELP), std::nullopt);
}

TEST(DocumentOf, IsNothingForAnItemThatRunsAProgram) {
    EXPECT_EQ(DocumentOf(IDC_LABEL5, "UB.mnu", nullptr), "Help\\BetterIdea.url");
    EXPECT_EQ(DocumentOf(ID_BACKUP, "UB.mnu", nullptr), std::nullopt);
}

TEST(DocumentOf, SystemHelpIsInTheFolderOfTheSystemCode) {
    EXPECT_EQ(DocumentOf(ID_SYSTEM_HELP, "UB.mnu", test::IsLeadByte), "Help\\UB\\Index.html");
    EXPECT_EQ(DocumentOf(ID_SYSTEM_HELP, "\x81^B.mnu", test::IsLeadByte), "Help\\\x81^B\\Index.html");
}

} // namespace obrin
