#include "maintenance/WorkstationUpdate.h"

#include "controls/WindowTest.h"

namespace obrin {
namespace {

using Texts = std::vector<std::string>;

// The texts that the progress label shows one after the other.
const Texts progress{"Updating:\r\nTessel.exe",       "Updating:\r\nSweeper.exe", "Updating:\r\nNotebox.exe",
                     "Updating:\r\nShowAllFenns.exe", "Updating:\r\nGlass.exe",   "Updating:\r\nComplete"};

class UpdateWindow : public test::WindowTest {
protected:
    UpdateWindow() {
        SetEnvironmentVariableA("Tessel", "Local");
        for (const char* path : {"Local", "Tessel", "Tessel\\Exe"})
            CreateFolder(path);
        for (const std::string name : {"Tessel", "Sweeper", "Notebox", "ShowAllFenns", "Glass"})
            WriteFileBytes("Tessel\\Exe\\" + name + ".exe", "new " + name);
    }

    /// Updates workstation 5 and presses the button at the end. Calls `act` with the window after each new
    /// text of the progress label.
    void Update(const test::WindowAction& act = [](HWND) {}) {
        onProgress = act;
        const HHOOK hook = SetWindowsHookExA(WH_CALLWNDPROCRET, Watch, nullptr, GetCurrentThreadId());
        CheckWorkstationUpdate(owner, 5);
        UnhookWindowsHookEx(hook);
    }

    static inline Texts shown;
    static inline bool isPaintedBeforeCopy;

private:
    void SetUp() override {
        shown.clear();
        isPaintedBeforeCopy = false;
    }

    static LRESULT CALLBACK Watch(int code, WPARAM wParam, LPARAM lParam) {
        const auto& message = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
        if (code == HC_ACTION && message.message == WM_SETTEXT && GetDlgCtrlID(message.hwnd) == IDC_LABEL1) {
            const HWND window = GetParent(message.hwnd);
            shown.emplace_back(reinterpret_cast<const char*>(message.lParam));
            if (shown.back() == progress.back())
                PostMessageA(window, WM_COMMAND, IDOK, 0);
            onProgress(window);
        }
        if (code == HC_ACTION && message.message == WM_PAINT && !FileExists("Local\\Tessel.exe"))
            isPaintedBeforeCopy = true;
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static inline test::WindowAction onProgress;
};

TEST_F(UpdateWindow, ShowsEachFileEvenIfOneCannotBeCopied) {
    DeleteFileA("Tessel\\Exe\\Sweeper.exe");
    Update();
    EXPECT_EQ(shown, progress);
}

TEST_F(UpdateWindow, CopiesTheFilesOverOlderOnes) {
    WriteFileBytes("Local\\Glass.exe", "old version");
    Update();
    for (const std::string name : {"Tessel", "Sweeper", "Notebox", "ShowAllFenns", "Glass"})
        EXPECT_EQ(ReadFileBytes("Local\\" + name + ".exe"), "new " + name);
}

// A copy can take minutes, and nothing is painted meanwhile.
TEST_F(UpdateWindow, IsPaintedBeforeTheFirstCopy) {
    Update();
    EXPECT_TRUE(isPaintedBeforeCopy);
}

TEST_F(UpdateWindow, FinishesItsCopiesAndRepeatsThemAfterAResize) {
    for (const std::size_t resizedAt : {2U, 6U}) {
        shown.clear();
        DeleteFileA("Updated.txt");
        Update([=](HWND window) {
            if (shown.size() == resizedAt)
                SendMessageA(window, WM_SIZE, 0, 0);
        });
        ASSERT_EQ(shown.size(), 2 * progress.size());
        EXPECT_EQ(Texts(shown.begin(), shown.begin() + 6), progress);
    }
}

TEST_F(UpdateWindow, HidesOkayWhileItCopies) {
    Update([](HWND window) { EXPECT_FALSE(IsWindowVisible(GetDlgItem(window, IDOK))) << shown.back(); });
}

TEST_F(UpdateWindow, GivesOkayTheFocusWhenItIsComplete) {
    int focused = 0;
    ActInDialog(
        owner, [this] { CheckWorkstationUpdate(owner, 5); },
        [&](HWND) { focused = GetDlgCtrlID(GetFocus()); },
        [](HWND window) { return IsWindowVisible(GetDlgItem(window, IDOK)); });
    EXPECT_EQ(focused, IDOK);
}

TEST_F(UpdateWindow, ShowsProgressInGeorgiaInTheSecondQuarterOfItsHeight) {
    Update([](HWND window) {
        const HWND label = GetDlgItem(window, IDC_LABEL1);
        RECT inside;
        GetClientRect(window, &inside);
        EXPECT_EQ(test::PlaceOf(label).top, inside.bottom / 4);
        EXPECT_EQ(test::SizeOf(test::PlaceOf(label)).cy, inside.bottom / 4);
        EXPECT_STREQ(test::FontShapeOf(label).lfFaceName, "Georgia");
    });
}

TEST_F(UpdateWindow, StaysOpenUntilAllIsCopiedIfClosedEarlier) {
    Update([this](HWND window) {
        if (shown.size() == 2)
            SendMessageA(window, WM_CLOSE, 0, 0);
        EXPECT_FALSE(IsWindowEnabled(owner)) << "the menu must stay disabled while files are copied";
    });
    EXPECT_EQ(shown, progress);
}

TEST_F(UpdateWindow, StopsCopyingAndRegistersNothingWhenTheMenuCloses) {
    Update([this](HWND) {
        if (shown.size() == 2)
            PostMessageA(owner, WM_CLOSE, 0, 0);
    });
    EXPECT_FALSE(FileExists("Local\\Notebox.exe"));
    EXPECT_EQ(ReadFileBytes("Updated.txt"), "");
}

} // namespace
} // namespace obrin
