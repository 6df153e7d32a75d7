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

    static bool IsMenuShown(const Launcher& launcher) {
        return launcher.Shown("Obrin System Menu") != nullptr;
    }

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
    const Launcher launcher;
    AwaitStartOfHost();
    host.MakeStation();
    host.ShowStation();
    EXPECT_FALSE(host.Until([&] { return IsMenuShown(launcher); }, 1500)) << "it would type into nothing";
    host.MakeCommandWindow();
    EXPECT_TRUE(host.Until([&] { return IsMenuShown(launcher); }));
    EXPECT_EQ(host.Typed(), firstSystem);
}

TEST_F(HostLinkTest, HidesAStationThatIsShownALittleLater) {
    const Launcher launcher;
    AwaitStartOfHost();
    host.MakeStation();
    host.MakeCommandWindow();
    EXPECT_FALSE(host.Until([&] { return IsMenuShown(launcher); }, 700));
    host.ShowStation();
    EXPECT_TRUE(host.Until([&] { return IsMenuShown(launcher); }));
    EXPECT_FALSE(host.IsStationShown());
}

TEST_F(HostLinkTest, GoesOnWithAStationThatIsNeverShown) {
    const Launcher launcher;
    AwaitStartOfHost();
    host.MakeStation();
    host.MakeCommandWindow();
    EXPECT_TRUE(host.Until([&] { return IsMenuShown(launcher); }));
}

TEST_F(HostLinkTest, NoticeStaysWhileTheHostHandlesTheFirstCommand) {
    const Launcher launcher;
    ASSERT_TRUE(host.Until([&] { return launcher.Shown(noticeTitle) != nullptr; }));
    bool isNoticeShown = false;
    host.onNextKey = [&] { isNoticeShown = launcher.Shown(noticeTitle) != nullptr; };
    ShowHost();
    EXPECT_TRUE(host.Until([&] { return IsMenuShown(launcher); }));
    EXPECT_TRUE(isNoticeShown);
    EXPECT_TRUE(host.Until([&] { return launcher.Shown(noticeTitle) == nullptr; }));
}

TEST_F(HostLinkTest, EndOfTheSessionDuringACloseFinishesTheClose) {
    const Launcher launcher;
    AwaitStartOfHost();
    ShowHost();
    ASSERT_TRUE(host.Until([&] { return IsMenuShown(launcher); }));
    const HWND menu = launcher.Menu();
    std::string typedAtAnswer;
    bool isMarkerThere = true;
    host.onNextKey = [&] {
        SendMessageA(menu, WM_ENDSESSION, TRUE,
                     0); // as Windows does; the program may be ended right behind it
        typedAtAnswer = host.Typed();
        isMarkerThere = FileExists("Menu 5.txt");
    };
    PostMessageA(menu, WM_CLOSE, 0, 0);
    EXPECT_TRUE(host.Until([&] { return !IsWindow(menu); }));
    // The key at which the session ended is noted behind the others.
    EXPECT_EQ(typedAtAnswer, std::string(firstSystem) + (exitCommand + 1));
    EXPECT_FALSE(isMarkerThere);
}

TEST_F(HostLinkTest, AnsweringYesDoesNotHangWithTheHost) {
    ShowHost(); // by a thread that processes no messages while the menu runs
    const Launcher launcher;
    launcher.Press("Error Opening Obrin System", IDYES);
    EXPECT_EQ(launcher.ExitCode(), 0);
}

} // namespace
} // namespace obrin::test
