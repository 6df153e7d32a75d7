// The link to a host that the test plays: windows that come late, keys that take long, the end of the
// session.

#include "end_to_end/PlayedHost.h"

namespace obrin::test {
namespace {

constexpr const char* noticeTitle = "Waiting for Fenn";

// Backslashes are typed as the key 220.
constexpr const char* firstSystem = "LOAD CORE\xDCSTARTSYS\rRUN\rUB\r";
constexpr const char* exitCommand = "RUN CORE\xDC"
                                    "EXIT\r";

struct HostLinkTest : testing::Test {
    const Installation installation{5};
    PlayedHost host;

    static bool IsMenuShown(const RunningMenu& menu) { return menu.Shown("Obrin System Menu") != nullptr; }

    // The host that was running before the menu would be refused.
    void AwaitStartOfHost() const {
        EXPECT_TRUE(host.Until([&] { return !installation.Logged("process").empty(); }));
    }

    // A station with its command window, on the screen.
    void ShowHost() {
        host.MakeStation();
        host.MakeCommandWindow();
        host.ShowStation();
    }
};

TEST_F(HostLinkTest, WaitsForTheCommandWindowOfTheStation) {
    const RunningMenu menu;
    AwaitStartOfHost();
    host.MakeStation();
    host.ShowStation();
    EXPECT_FALSE(host.Until([&] { return IsMenuShown(menu); }, 1500)) << "it would type into nothing";
    host.MakeCommandWindow();
    EXPECT_TRUE(host.Until([&] { return IsMenuShown(menu); }));
    EXPECT_EQ(host.Typed(), firstSystem);
}

TEST_F(HostLinkTest, HidesAStationThatIsShownALittleLater) {
    const RunningMenu menu;
    AwaitStartOfHost();
    host.MakeStation();
    host.MakeCommandWindow();
    EXPECT_FALSE(host.Until([&] { return IsMenuShown(menu); }, 700));
    host.ShowStation();
    EXPECT_TRUE(host.Until([&] { return IsMenuShown(menu); }));
    EXPECT_FALSE(host.IsStationShown());
}

TEST_F(HostLinkTest, GoesOnWithAStationThatIsNeverShown) {
    const RunningMenu menu;
    AwaitStartOfHost();
    host.MakeStation();
    host.MakeCommandWindow();
    EXPECT_TRUE(host.Until([&] { return IsMenuShown(menu); }));
}

TEST_F(HostLinkTest, NoticeStaysWhileTheHostHandlesTheFirstCommand) {
    const RunningMenu menu;
    ASSERT_TRUE(host.Until([&] { return menu.Shown(noticeTitle) != nullptr; }));
    bool isNoticeShown = false;
    host.onNextKey = [&] { isNoticeShown = menu.Shown(noticeTitle) != nullptr; };
    ShowHost();
    EXPECT_TRUE(host.Until([&] { return IsMenuShown(menu); }));
    EXPECT_TRUE(isNoticeShown);
    EXPECT_TRUE(host.Until([&] { return menu.Shown(noticeTitle) == nullptr; }));
}

TEST_F(HostLinkTest, EndOfTheSessionDuringACloseFinishesTheClose) {
    const RunningMenu menu;
    AwaitStartOfHost();
    ShowHost();
    ASSERT_TRUE(host.Until([&] { return IsMenuShown(menu); }));
    const HWND window = menu.Window();
    std::string typedAtAnswer;
    bool isMarkerThere = true;
    host.onNextKey = [&] {
        SendMessageA(window, WM_ENDSESSION, TRUE,
                     0); // as Windows does; the program may be ended right behind it
        typedAtAnswer = host.Typed();
        isMarkerThere = FileExists("Menu 5.txt");
    };
    PostMessageA(window, WM_CLOSE, 0, 0);
    EXPECT_TRUE(host.Until([&] { return !IsWindow(window); }));
    // The key at which the session ended is noted behind the others.
    EXPECT_EQ(typedAtAnswer, std::string(firstSystem) + (exitCommand + 1));
    EXPECT_FALSE(isMarkerThere);
}

TEST_F(HostLinkTest, AnsweringYesDoesNotHangWithTheHost) {
    ShowHost(); // by a thread that processes no messages while the menu runs
    const RunningMenu menu;
    menu.Press("Error Opening Obrin System", IDYES);
    EXPECT_EQ(menu.ExitCode(), 0);
}

} // namespace
} // namespace obrin::test
