// The link to a host whose windows the test makes itself: windows that come late or never, and a session that
// ends while keys are typed.

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

// The menu starts the stand-in host, whose window gets no caption here. So the menu takes a window of this
// thread for the station: it looks for the caption only, and any window class will do.
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
    // The child of the station that takes the keys.
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

    // Processes messages until the condition holds. Returns false if it does not within this time.
    static bool WaitUntil(const std::function<bool()>& condition, DWORD milliseconds = 20'000) {
        for (const ULONGLONG start = GetTickCount64(); !condition();) {
            if (GetTickCount64() - start > milliseconds)
                return false;
            ProcessPendingEvents();
            Sleep(5);
        }
        return true;
    }
    static bool ShowsMenu(const RunningMenu& menu, DWORD milliseconds = 20'000) {
        return WaitUntil([&] { return menu.Shown(menuCaption) != nullptr; }, milliseconds);
    }

    static inline std::function<void()> onNextKey; // called once, before the key is added to `typed`
    static inline std::string typed;

    const Installation installation{5};
    HWND station = nullptr;
};

TEST_F(HostLinkTest, WaitsForTheCommandWindowOfTheStation) {
    MakeStation();
    ShowStation();
    const RunningMenu menu;
    EXPECT_FALSE(ShowsMenu(menu, 2000)) << "there is no window to type into yet";
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

// While the host's window is being hidden, the host brings the child that takes the keys to the front.
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
    ASSERT_TRUE(WaitUntil([&] { return menu.Shown(noticeTitle) != nullptr; }));
    EXPECT_EQ(menu.Texts(noticeTitle).find("could not be started"), std::string::npos);
    bool isNoticeShown = false;
    onNextKey = [&] { isNoticeShown = menu.Shown(noticeTitle) != nullptr; };
    MakeStation();
    MakeCommandWindow();
    ShowStation();
    EXPECT_TRUE(ShowsMenu(menu));
    EXPECT_TRUE(isNoticeShown);
    EXPECT_TRUE(WaitUntil([&] { return menu.Shown(noticeTitle) == nullptr; }));
}

TEST_F(HostLinkTest, EndOfTheSessionDuringACloseFinishesTheClose) {
    MakeStation();
    MakeCommandWindow();
    ShowStation();
    const RunningMenu menu;
    ASSERT_TRUE(ShowsMenu(menu));
    const HWND window = menu.Window();
    std::string typedAtSessionEnd;
    bool isMarkerThere = true;
    onNextKey = [&] {
        // Windows does the same, and may end the program as soon as the call returns.
        SendMessageA(window, WM_ENDSESSION, TRUE, 0);
        typedAtSessionEnd = typed;
        isMarkerThere = FileExists("Menu 5.txt");
    };
    PostMessageA(window, WM_CLOSE, 0, 0);
    EXPECT_TRUE(WaitUntil([&] { return !IsWindow(window); }));
    // The first key of the exit command is missing: TakeKey adds it to `typed` only after it has called
    // onNextKey.
    EXPECT_EQ(typedAtSessionEnd, std::string(firstSystem) + (exitCommand + 1));
    EXPECT_FALSE(isMarkerThere);
}

TEST_F(HostLinkTest, ShowingAHostThatHangsDoesNotHangTheMenu) {
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
