#include "maintenance/WorkstationUpdate.h"

#include "resources/Ids.h"
#include "support/DialogTest.h"
#include "support/ScratchFolder.h"

namespace obrin {
namespace {

using Texts = std::vector<std::string>;

// The texts of the progress label, one after the other.
const Texts progress{"Updating:\r\nTessel.exe",       "Updating:\r\nSweeper.exe", "Updating:\r\nNotebox.exe",
                     "Updating:\r\nShowAllFenns.exe", "Updating:\r\nGlass.exe",   "Updating:\r\nComplete"};

class UpdateWindow : public test::DialogTest {
protected:
    UpdateWindow() {
        SetEnvironmentVariableA("Tessel", "Local");
        for (const char* path : {"Local", "Tessel", "Tessel\\Exe"})
            CreateFolder(path);
        for (const std::string name : {"Tessel", "Sweeper", "Notebox", "ShowAllFenns", "Glass"})
            WriteFileBytes("Tessel\\Exe\\" + name + ".exe", "new " + name);
    }

    /// Updates workstation 5 and presses the button at the end. Calls `act` with the window after each text
    /// of the progress label. The window does not notice that it is watched.
    void Update(const test::WindowAction& act = [](HWND) {}) {
        onProgress = act;
        const HHOOK hook = SetWindowsHookExA(WH_CALLWNDPROCRET, Watch, nullptr, GetCurrentThreadId());
        CheckWorkstationUpdate(owner, 5);
        UnhookWindowsHookEx(hook);
    }

    /// Updates it, and sends the window a message after one of the texts, counted from 1.
    void UpdateAndSend(std::size_t text, UINT message) {
        Update([=](HWND window) {
            if (shown.size() == text)
                SendMessageA(window, message, 0, 0);
        });
    }

    static inline Texts shown;
    static inline bool isPaintedBeforeCopy;

    const test::ScratchFolder folder;

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

TEST_F(UpdateWindow, ShowsEachFileAlsoOneThatCannotBeCopied) {
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

TEST_F(UpdateWindow, EntersTheWorkstationWhenItIsClosed) {
    Update([](HWND) { EXPECT_EQ(ReadFileBytes("Updated.txt"), ""); });
    EXPECT_EQ(ReadFileBytes("Updated.txt"), "005");
}

TEST_F(UpdateWindow, IsNotShownForAWorkstationThatIsEntered) {
    WriteFileBytes("Updated.txt", "001005");
    Update();
    EXPECT_TRUE(shown.empty());
}

// A copy can take minutes, in which nothing is painted.
TEST_F(UpdateWindow, IsPaintedBeforeTheFirstCopy) {
    Update();
    EXPECT_TRUE(isPaintedBeforeCopy);
}

TEST_F(UpdateWindow, CopiesAgainAfterAResize) {
    UpdateAndSend(progress.size(), WM_SIZE);
    EXPECT_EQ(shown.size(), 2 * progress.size());
}

TEST_F(UpdateWindow, ResizedWhileCopyingFinishesThatFirst) {
    UpdateAndSend(2, WM_SIZE);
    ASSERT_EQ(shown.size(), 2 * progress.size());
    EXPECT_EQ(Texts(shown.begin(), shown.begin() + 6), progress);
}

TEST_F(UpdateWindow, HidesOkayWhileItCopies) {
    Update([](HWND window) { EXPECT_FALSE(IsWindowVisible(GetDlgItem(window, IDOK))) << shown.back(); });
}

TEST_F(UpdateWindow, GivesOkayTheKeyboardWhenItIsComplete) {
    int focused = 0;
    ActInDialog(
        owner, [this] { CheckWorkstationUpdate(owner, 5); },
        [&](HWND) { focused = GetDlgCtrlID(GetFocus()); },
        [](HWND window) { return IsWindowVisible(GetDlgItem(window, IDOK)); });
    EXPECT_EQ(focused, IDOK);
}

TEST_F(UpdateWindow, HasItsProgressLabelInTheSecondQuarterOfItsHeight) {
    Update([](HWND window) {
        const RECT label = test::PlaceOf(GetDlgItem(window, IDC_LABEL1));
        RECT inside;
        GetClientRect(window, &inside);
        EXPECT_EQ(label.top, inside.bottom / 4);
        EXPECT_EQ(label.bottom - label.top, inside.bottom / 4);
    });
}

TEST_F(UpdateWindow, HasItsLabelsInGeorgia) {
    Update([](HWND window) {
        for (const int label : {IDC_LABEL1, IDC_LABEL2})
            EXPECT_STREQ(test::FontShapeOf(GetDlgItem(window, label)).lfFaceName, "Georgia");
    });
}

TEST_F(UpdateWindow, ClosedWhileCopyingStaysUntilAllIsCopied) {
    Update([this](HWND window) {
        if (shown.size() == 2)
            SendMessageA(window, WM_CLOSE, 0, 0);
        EXPECT_FALSE(IsWindowEnabled(owner)) << "the menu could be used";
    });
    EXPECT_EQ(shown, progress);
}

TEST_F(UpdateWindow, GoneWithTheMenuCopiesNoMoreAndIsShownAtTheNextStart) {
    Update([this](HWND) {
        if (shown.size() == 2)
            PostMessageA(owner, WM_CLOSE, 0, 0);
    });
    EXPECT_FALSE(FileExists("Local\\Notebox.exe"));
    EXPECT_EQ(ReadFileBytes("Updated.txt"), "");
}

} // namespace
} // namespace obrin
