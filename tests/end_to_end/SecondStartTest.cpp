// A start while a host or another menu is open.

#include "end_to_end/Installation.h"

namespace obrin::test {
namespace {

constexpr const char* questionTitle = "Error Opening Obrin System";

// A host is open, hidden and minimized.
struct OpenHost : testing::Test {
    OpenHost() {
        Start(std::filesystem::current_path() / "Fenn.exe");
        EXPECT_TRUE(Eventually([&] { return (host = FindWindowA("ZafWindow", "Obrin-01")) != nullptr; }));
        ShowWindow(host, SW_SHOWMINNOACTIVE);
        ShowWindow(host, SW_HIDE);
    }

    void StartMenuAndAnswer(int button) const {
        const RunningMenu menu;
        menu.Press(questionTitle, button);
        EXPECT_EQ(menu.ExitCode(), 0);
    }

    const Installation installation{5};
    HWND host = nullptr;
};

TEST_F(OpenHost, MakesTheMenuAskWhetherToShowIt) {
    const RunningMenu menu;
    EXPECT_NE(
        menu.Texts(questionTitle)
            .find("Error: Fenn Already Open!! Please close before proceeding.\r\n\r\nWould you like us to "
                  "show the Fenn Window Now?"),
        std::string::npos);
    const HWND box = menu.Window(questionTitle);
    EXPECT_TRUE(GetDlgItem(box, IDYES));
    EXPECT_FALSE(GetDlgItem(box, IDCANCEL));
    EXPECT_TRUE(SendDlgItemMessageA(box, IDNO, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON)
        << "No must be the default button";
    EXPECT_TRUE(ReadFileBytes("FennConfig.Sys").starts_with("Drive S," + ShortPath(CurrentFolder()) + ","))
        << "the file must be rewritten before the question";
}

TEST_F(OpenHost, StaysHiddenAfterNo) {
    StartMenuAndAnswer(IDNO);
    EXPECT_FALSE(IsWindowVisible(host));
}

TEST_F(OpenHost, IsShownAfterYes) {
    StartMenuAndAnswer(IDYES);
    // The menu does not wait for the host, which may hang. So the host may appear after the menu has ended.
    EXPECT_TRUE(Eventually([&] { return IsWindowVisible(host) && !IsIconic(host); }));
}

// Another menu is open, and its host has gone.
struct OpenMenu : testing::Test {
    OpenMenu() {
        EXPECT_TRUE(installation.HostGetsLast("UB"));
        EXPECT_TRUE(KeepsForeground(first.Window())); // the last thing that a start does
        installation.EndHost();
    }

    static void StartSecond() { EXPECT_EQ(RunningMenu().ExitCode(), 0); }

    const Installation installation{5};
    const RunningMenu first;
};

TEST_F(OpenMenu, ComesToTheFront) {
    SetForegroundWindow(GetDesktopWindow());
    EXPECT_TRUE(Eventually([&] { return GetForegroundWindow() != first.Window(); }));
    StartSecond();
    EXPECT_TRUE(KeepsForeground(first.Window()));
}

TEST_F(OpenMenu, IsRestored) {
    ShowWindow(first.Window(), SW_SHOWMINNOACTIVE);
    StartSecond();
    EXPECT_TRUE(KeepsForeground(first.Window()));
    EXPECT_TRUE(Eventually([this] { return !IsIconic(first.Window()); }));
}

TEST_F(OpenMenu, ThatHangsDoesNotMakeTheSecondOneHang) {
    first.Suspend();
    StartSecond();
    first.Resume();
}

TEST(OpenMenuAndHost, TheQuestionAboutTheHostComesFirst) {
    const Installation installation(5);
    const RunningMenu first;
    ASSERT_TRUE(installation.HostGetsLast("UB"));
    EXPECT_TRUE(RunningMenu().Window(questionTitle));
}

} // namespace
} // namespace obrin::test
