// The wait for a host that comes late or never, and the notice that the operator sees meanwhile.

#include "end_to_end/Installation.h"

namespace obrin::test {
namespace {

constexpr const char* noticeTitle = "Waiting for Fenn";

struct HostNoticeTest : testing::Test {
    const Installation installation{5};
};

TEST_F(HostNoticeTest, IsNotShownInTheFirstTwoSeconds) {
    SetEnvironmentVariableA("FENN_WINDOW_DELAY_MS", "600");
    SetEnvironmentVariableA("FENN_CAPTION_DELAY_MS", "600"); // from the window to its caption
    const ULONGLONG start = GetTickCount64();
    const RunningMenu menu;
    bool wasShown = false;
    EXPECT_TRUE(Eventually([&] {
        wasShown = wasShown || menu.Shown(noticeTitle) != nullptr;
        return menu.Shown(menuCaption) != nullptr;
    }));
    if (GetTickCount64() - start >= 2000)
        GTEST_SKIP() << "The machine is too busy to tell.";
    EXPECT_FALSE(wasShown);
}

TEST_F(HostNoticeTest, MenuIsHiddenAndHasNoCaptionYet) {
    SetEnvironmentVariableA("FENN_NEVER", "window");
    const RunningMenu menu;
    EXPECT_TRUE(installation.StartsHost());
    EXPECT_FALSE(IsWindowVisible(menu.LoadingWindow()));
    EXPECT_EQ(TextOf(menu.LoadingWindow()), "") << "a second start must not take this for a finished menu";
}

TEST_F(HostNoticeTest, SaysAtOnceWhyTheHostCouldNotBeStarted) {
    DeleteFileA("Fenn.exe");
    const RunningMenu menu;
    const std::string texts = menu.Texts(noticeTitle);
    EXPECT_NE(texts.find("could not be started: " + PlatformText(ERROR_FILE_NOT_FOUND)), std::string::npos)
        << texts;
}

TEST_F(HostNoticeTest, ClosingItEndsTheMenu) {
    const std::pair<const char*, void (*)(HWND notice)> ways[] = {
        {"its button", [](HWND notice) { SendDlgItemMessageA(notice, IDCANCEL, BM_CLICK, 0, 0); }},
        {"Escape", [](HWND notice) { PostMessageA(notice, WM_KEYDOWN, VK_ESCAPE, 0); }},
        {"its close box", [](HWND notice) { PostMessageA(notice, WM_SYSCOMMAND, SC_CLOSE, 0); }},
    };
    DeleteFileA("Fenn.exe"); // so that the notice is shown at once
    for (const auto& [way, close] : ways) {
        SCOPED_TRACE(way);
        const RunningMenu menu;
        close(menu.Window(noticeTitle));
        EXPECT_EQ(menu.ExitCode(), 0);
    }
}

TEST_F(HostNoticeTest, MenuClosedBeforeItShowsASystemChangesNothing) {
    RememberSystem("UB.mnu "); // with a blank, which the menu would not write
    SetEnvironmentVariableA("FENN_NEVER", "caption");
    const RunningMenu menu;
    EXPECT_TRUE(installation.StartsHost());
    menu.Close();
    EXPECT_EQ(menu.ExitCode(), 0);
    ExpectRemembered("UB.mnu ");
    EXPECT_FALSE(FileExists("Menu 5.txt"));
    EXPECT_EQ(installation.Logged("process").size(), 1U) << "the menu must not start a second host";
}

TEST_F(HostNoticeTest, ComesToTheFrontAtASecondStart) {
    DeleteFileA("Fenn.exe");
    const RunningMenu first;
    const HWND notice = first.Window(noticeTitle);
    SetForegroundWindow(GetDesktopWindow());
    EXPECT_EQ(RunningMenu().ExitCode(), 0);
    EXPECT_TRUE(KeepsForeground(notice));
}

} // namespace
} // namespace obrin::test
