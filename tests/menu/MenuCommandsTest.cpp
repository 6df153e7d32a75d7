#include "menu/MenuCommands.h"

#include "resources/Ids.h"
#include "support/CodePage.h"

#include <gtest/gtest.h>

namespace obrin {

TEST(HostProgramOf, IsTheProgramThatAnItemRuns) {
    EXPECT_EQ(HostProgramOf(ID_BACKUP), "Core\\Programs\\CSBackup");
    EXPECT_EQ(HostProgramOf(ID_RESTORE), "Core\\Programs\\CSRestore");
    EXPECT_EQ(HostProgramOf(ID_SELECT_CO), "Core\\Programs\\SelCNo");
    EXPECT_EQ(HostProgramOf(ID_COPY_CO), "Core\\Programs\\CopyCNo");
    EXPECT_EQ(HostProgramOf(ID_ERASE_CO), "Core\\Programs\\EraseCNo");
    EXPECT_EQ(HostProgramOf(ID_REDIRECT_PRINT), "Core\\Programs\\RePrint");
    EXPECT_EQ(HostProgramOf(ID_UPDATE), "Core\\Programs\\Update\\File");
    EXPECT_EQ(HostProgramOf(ID_PRINT_TEST), "Core\\Programs\\PrintTest");
}

TEST(HostProgramOf, IsNothingForAnItemThatRunsNone) {
    EXPECT_EQ(HostProgramOf(ID_CORE_HELP), std::nullopt);
    EXPECT_EQ(HostProgramOf(ID_ABOUT), std::nullopt);
}

TEST(DocumentOf, IsTheDocumentThatAnItemOpens) {
    EXPECT_EQ(DocumentOf(ID_CORE_HELP, "UB.mnu", nullptr), "Help\\Index.html");
    EXPECT_EQ(DocumentOf(ID_WEBSITE, "UB.mnu", nullptr), "Help\\Obrin-Web.url");
    EXPECT_EQ(DocumentOf(ID_USER_SITE, "UB.mnu", nullptr), "Obrin-User.url") << "not in the help folder";
    EXPECT_EQ(DocumentOf(IDC_LABEL5, "UB.mnu", nullptr), "Help\\BetterIdea.url");
}

TEST(DocumentOf, SystemHelpIsInTheFolderOfTheSystemCode) {
    EXPECT_EQ(DocumentOf(ID_SYSTEM_HELP, "UB.mnu", test::IsLeadByte), "Help\\UB\\Index.html");
    EXPECT_EQ(DocumentOf(ID_SYSTEM_HELP, "\x81^B.mnu", test::IsLeadByte), "Help\\\x81^B\\Index.html");
}

TEST(DocumentOf, IsNothingForAnItemThatOpensNone) {
    EXPECT_EQ(DocumentOf(ID_BACKUP, "UB.mnu", nullptr), std::nullopt);
    EXPECT_EQ(DocumentOf(IDC_LABEL4, "UB.mnu", nullptr), std::nullopt);
}

} // namespace obrin
