// The first start of a user: the question for a workstation number, and what starts with the number.

#include "end_to_end/Installation.h"

namespace obrin::test {
namespace {

constexpr const char* questionTitle = "Please Select a WSID";

// An installation that does not know the user yet. The file holds one record, of another user
// with number 9. It ends right after the number, as the last record may.
struct FirstStart : testing::Test {
    FirstStart() { WriteFileBytes("UserWSID.sys", otherRecord.substr(0, 102)); }

    static void Answer(const RunningMenu& menu, const char* text, int button = IDOK) {
        SendMessageA(GetDlgItem(menu.Window(questionTitle), IDC_ANSWER), WM_SETTEXT, 0,
                     reinterpret_cast<LPARAM>(text));
        menu.Press(questionTitle, button);
    }

    const Installation installation{0};
    const std::string user = LoginName();
    const std::string otherRecord = UserWsidRecord("other than " + user, 9);
};

TEST_F(FirstStart, AsksTheUserByNameForANumber) {
    const RunningMenu menu;
    EXPECT_TRUE(menu.Texts(questionTitle)
                    .starts_with("Hello " + user +
                                 ", we have detected this is your first entry into Obrin what would you like "
                                 "your WSID Number to be?\r\n\r\n(Valid Answers are 1 to 99)\n"));
}

TEST_F(FirstStart, IgnoresTheAnswerAfterAnInvalidOne) {
    const RunningMenu menu;
    Answer(menu, "0"); // invalid
    Answer(menu, "7"); // ignored
    Answer(menu, "9", IDCANCEL);
    Answer(menu, "8"); // ignored: Cancel was an invalid answer, too
    Answer(menu, " 5 ");
    EXPECT_TRUE(installation.HostGetsLast("UB"));
    EXPECT_EQ(installation.Logged("start"), Lines{"run core\\start -5"});
}

TEST_F(FirstStart, AppendsTheNumberToTheRecordsOfOtherUsers) {
    const RunningMenu menu;
    Answer(menu, "5");
    EXPECT_TRUE(menu.Window());
    EXPECT_EQ(ReadFileBytes("UserWSID.sys"), otherRecord + UserWsidRecord(user, 5));
}

TEST_F(FirstStart, MenuClosedAtTheQuestionGoesNoFurther) {
    DeleteFileA("Corvel.dll"); // a menu that went on would end with an error
    const RunningMenu menu;
    EXPECT_TRUE(menu.Window(questionTitle));
    EXPECT_FALSE(IsWindowEnabled(menu.LoadingWindow()));
    menu.Close();
    EXPECT_EQ(menu.ExitCode(), 0);
}

TEST(DamagedRecord, WithANegativeNumberMakesTheMenuWaitUntilItIsClosed) {
    const Installation installation(-7);
    DeleteFileA("Corvel.dll"); // a menu that went on would end with an error
    const RunningMenu menu;
    EXPECT_TRUE(menu.LoadingWindow());
    SendMessageA(menu.LoadingWindow(), WM_SETTINGCHANGE, 0, 0); // must not fail: there are no controls yet
    Sleep(300);
    EXPECT_FALSE(menu.Shown(questionTitle));
    EXPECT_FALSE(menu.Shown("ObrinMenu")) << "the menu must not show an error";
    menu.Close();
    EXPECT_EQ(menu.ExitCode(), 0);
}

TEST(RecordedUser, GetsTheirRecordedNumber) {
    const Installation installation(5);
    const RunningMenu menu;
    EXPECT_EQ(TextOf(GetDlgItem(menu.Window(), IDC_LABEL2)), "User - " + LoginName());
    EXPECT_EQ(TextOf(GetDlgItem(menu.Window(), IDC_LABEL3)), "WSID - 05");
    EXPECT_TRUE(FileExists("Menu 5.txt"));
    const HWND station = FindWindowA("ZafWindow", "Obrin-05");
    ASSERT_TRUE(station);
    EXPECT_FALSE(IsWindowVisible(station));
}

} // namespace
} // namespace obrin::test
