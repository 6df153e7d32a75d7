// The link to a host that the test plays itself, window by window: windows that come late, keys that take
// long, the end of the session.

#include "end_to_end/Installation.h"

#include "platform/Events.h"

#include <utility>

namespace obrin::test {
namespace {

constexpr const char* noticeTitle = "Waiting for Fenn";

// Backslashes are typed as the key 220.
constexpr const char* firstSystem = "LOAD CORE\xDCSTARTSYS\rRUN\rUB\r";
constexpr const char* exitCommand = "RUN CORE\xDC"
                                    "EXIT\r";

// The stand-in host that the menu starts never names its window: the station is a window of this thread. The
// class of the station does not matter.
struct HostLinkTest : testing::Test {
    HostLinkTest() {
        SetEnvironmentVariableA("FENN_NEVER", "caption");
        typed.clear();
        WNDCLASSA command{};
        command.lpfnWndProc = TakeKey;
        command.lpszClassName = "ObrinTest.Command";
        RegisterClassA(&command);
    }
    ~HostLinkTest() override { DestroyWindow(station); }

    // The station window of workstation 5, hidden and without a child.
    void MakeStation(const char* windowClass = WC_STATICA) {
        station = CreateWindowExA(0, windowClass, "Obrin-05", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, nullptr,
                                  nullptr, nullptr, nullptr);
    }
    // Its child takes the keys.
    void MakeCommandWindow() const {
        CreateWindowExA(0, "ObrinTest.Command", "", WS_CHILD, 0, 0, 0, 0, station, nullptr, nullptr, nullptr);
    }
    void ShowStation() const { ShowWindow(station, SW_SHOWNOACTIVATE); }

    static LRESULT CALLBACK TakeKey(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message != WM_KEYDOWN)
            return DefWindowProcA(window, message, wParam, lParam);
        if (const auto act = std::exchange(onNextKey, {}))
            act();
        typed += static_cast<char>(wParam);
        return 0;
    }

    // Processes messages until the condition holds; false when it never did.
    static bool Until(const std::function<bool()>& condition, DWORD milliseconds = 20'000) {
        for (const ULONGLONG start = GetTickCount64(); !condition();) {
            if (GetTickCount64() - start > milliseconds)
                return false;
            ProcessPendingEvents();
            Sleep(5);
        }
        return true;
    }
    static bool ShowsMenu(const RunningMenu& menu, DWORD milliseconds = 20'000) {
        return Until([&] { return menu.Shown(menuCaption) != nullptr; }, milliseconds);
    }

    static inline std::function<void()> onNextKey; // called once, before the key is noted
    static inline std::string typed;

    const Installation installation{5};
    HWND station = nullptr;
};

TEST_F(HostLinkTest, WaitsForTheCommandWindowOfTheStation) {
    MakeStation();
    ShowStation();
    const RunningMenu menu;
    EXPECT_FALSE(ShowsMenu(menu, 2000)) << "it would type into nothing";
    MakeCommandWindow();
    EXPECT_TRUE(ShowsMenu(menu));
    EXPECT_EQ(typed, firstSystem);
}

TEST_F(HostLinkTest, HidesAStationThatIsShownALittleLater) {
    MakeStation();
    MakeCommandWindow();
    const RunningMenu menu;
    EXPECT_TRUE(installation.StartsHost());
    EXPECT_FALSE(ShowsMenu(menu, 700));
    ShowStation();
    EXPECT_TRUE(ShowsMenu(menu));
    EXPECT_FALSE(IsWindowVisible(station));
}

// As it hides, the host puts the window that takes the keys in front.
LRESULT CALLBACK PutCommandWindowInFront(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SHOWWINDOW && wParam == FALSE)
        SetWindowPos(FindWindowExA(window, nullptr, "ObrinTest.Command", nullptr), HWND_TOP, 0, 0, 0, 0,
                     SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
    return DefWindowProcA(window, message, wParam, lParam);
}

TEST_F(HostLinkTest, TypesIntoTheWindowThatIsInFrontOnceTheStationIsHidden) {
    MakeStation();
    SetWindowLongPtrA(station, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(PutCommandWindowInFront));
    MakeCommandWindow();
    const HWND other =
        CreateWindowExA(0, WC_STATICA, "", WS_CHILD, 0, 0, 0, 0, station, nullptr, nullptr, nullptr);
    SetWindowPos(other, HWND_TOP, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
    ShowStation();
    const RunningMenu menu;
    EXPECT_TRUE(ShowsMenu(menu));
    EXPECT_EQ(typed, firstSystem);
}

TEST_F(HostLinkTest, GoesOnWithAStationThatIsNeverShown) {
    MakeStation();
    MakeCommandWindow();
    const RunningMenu menu;
    EXPECT_TRUE(ShowsMenu(menu));
}

TEST_F(HostLinkTest, NoticeStaysWhileTheHostHandlesTheFirstCommand) {
    const RunningMenu menu;
    ASSERT_TRUE(Until([&] { return menu.Shown(noticeTitle) != nullptr; }));
    EXPECT_EQ(menu.Texts(noticeTitle).find("could not be started"), std::string::npos);
    bool isNoticeShown = false;
    onNextKey = [&] { isNoticeShown = menu.Shown(noticeTitle) != nullptr; };
    MakeStation();
    MakeCommandWindow();
    ShowStation();
    EXPECT_TRUE(ShowsMenu(menu));
    EXPECT_TRUE(isNoticeShown);
    EXPECT_TRUE(Until([&] { return menu.Shown(noticeTitle) == nullptr; }));
}

TEST_F(HostLinkTest, EndOfTheSessionDuringACloseFinishesTheClose) {
    MakeStation();
    MakeCommandWindow();
    ShowStation();
    const RunningMenu menu;
    ASSERT_TRUE(ShowsMenu(menu));
    const HWND window = menu.Window();
    std::string typedAtAnswer;
    bool isMarkerThere = true;
    onNextKey = [&] {
        // As Windows does; the program may be ended right behind it.
        SendMessageA(window, WM_ENDSESSION, TRUE, 0);
        typedAtAnswer = typed;
        isMarkerThere = FileExists("Menu 5.txt");
    };
    PostMessageA(window, WM_CLOSE, 0, 0);
    EXPECT_TRUE(Until([&] { return !IsWindow(window); }));
    // The key at which the session ended is noted behind the others.
    EXPECT_EQ(typedAtAnswer, std::string(firstSystem) + (exitCommand + 1));
    EXPECT_FALSE(isMarkerThere);
}

TEST_F(HostLinkTest, AnsweringYesDoesNotHangWithTheHost) {
    WNDCLASSA host{};
    host.lpfnWndProc = DefWindowProcA;
    host.lpszClassName = hostWindowClass;
    RegisterClassA(&host);
    MakeStation(hostWindowClass); // by a thread that processes no messages while the menu runs
    const RunningMenu menu;
    menu.Press("Error Opening Obrin System", IDYES);
    EXPECT_EQ(menu.ExitCode(), 0);
}

} // namespace
} // namespace obrin::test
