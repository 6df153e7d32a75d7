#include "maintenance/WorkstationUpdate.h"

#include "support/ModalTest.h"
#include "support/WindowChecks.h"

namespace obrin {
namespace {

constexpr const char* names[] = {"Tessel.exe", "Sweeper.exe", "Notebox.exe", "ShowAllFenns.exe", "Glass.exe"};

class UpdateWindow : public test::ModalTest {
protected:
    UpdateWindow() {
        SetEnvironmentVariableA("Tessel", "Local");
        for (const char* path : {"Local", "Tessel", "Tessel\\Exe"})
            CreateFolder(path);
        for (const char* name : names)
            WriteFileBytes(std::string("Tessel\\Exe\\") + name, name);
    }

    /// The update of a workstation. After each caption of the progress text `act` is called, with the window
    /// and how many captions there were: hooks see messages without the window's knowing.
    void Update(int wsid, std::function<void(HWND, std::size_t)> act) {
        captions.clear();
        onCaption = std::move(act);
        const HHOOK hook = SetWindowsHookExA(WH_CALLWNDPROCRET, Watch, nullptr, GetCurrentThreadId());
        CheckWorkstationUpdate(owner, wsid);
        UnhookWindowsHookEx(hook);
    }

    static void Okay(HWND window, std::size_t) {
        if (captions.back() == "Complete")
            PostMessageA(window, WM_COMMAND, IDOK, 0);
    }

    static inline std::vector<std::string> captions; // in order, without their first line
    static inline bool paintedBeforeCopy = false;

private:
    static LRESULT CALLBACK Watch(int code, WPARAM wParam, LPARAM lParam) {
        const auto& message = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
        if (code == HC_ACTION && message.message == WM_SETTEXT && GetDlgCtrlID(message.hwnd) == IDC_LABEL1) {
            const std::string caption = reinterpret_cast<const char*>(message.lParam);
            EXPECT_TRUE(caption.starts_with("Updating:\r\n"));
            captions.push_back(caption.substr(11));
            onCaption(GetParent(message.hwnd), captions.size());
        }
        // Later captions are drawn by the label itself, when it gets them.
        if (code == HC_ACTION && message.message == WM_PAINT && captions.size() == 1)
            paintedBeforeCopy = paintedBeforeCopy || !FileExists("Local\\Tessel.exe");
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static inline std::function<void(HWND, std::size_t)> onCaption;
    const test::ScratchFolder folder;
};

TEST_F(UpdateWindow, CopiesOnceAndAgainOnEveryResizeAndEntersTheWorkstation) {
    WriteFileBytes("Local\\Glass.exe", "old version");
    Update(5, [](HWND window, std::size_t shown) {
        EXPECT_TRUE(IsWindowVisible(window));
        const std::vector<RECT> label = test::Places(GetDlgItem(window, IDC_LABEL1));
        RECT inner;
        GetClientRect(window, &inner);
        EXPECT_EQ(std::tuple(label[0].left, label[0].top, label[0].bottom),
                  std::tuple(inner.bottom / 16, inner.bottom / 4, inner.bottom / 4 * 2));
        const std::string font = test::FontOf(GetDlgItem(window, IDC_LABEL1));
        EXPECT_EQ(font,
                  "Georgia-" + std::to_string(MulDiv(10, static_cast<int>(GetDpiForWindow(window)), 72)));
        EXPECT_EQ(font, test::FontOf(GetDlgItem(window, IDC_LABEL2)));
        const HWND okay = GetDlgItem(window, IDOK);
        EXPECT_EQ(IsWindowVisible(okay) && GetFocus() == okay, shown > 6) << "once all are copied";
        // The notification alone: how often a display tells of a real resize is its own affair.
        if (captions.back() == "Complete" && shown < 18)
            SendMessageA(window, WM_SIZE, SIZE_RESTORED, 0);
        else
            Okay(window, shown);
    });
    ASSERT_EQ(captions.size(), 18U);
    EXPECT_TRUE(paintedBeforeCopy) << "a copy may take minutes";
    for (std::size_t i = 0; i < captions.size(); ++i)
        EXPECT_EQ(captions[i], i % 6 == 5 ? "Complete" : names[i % 6]);
    for (const char* name : names)
        EXPECT_EQ(ReadFileBytes(std::string("Local\\") + name), name);
    EXPECT_EQ(ReadFileBytes("Updated.txt"), "005");
    Update(5, Okay);
    EXPECT_EQ(captions.size(), 0U) << "no second window";
    for (const int wsid : {-7, 1234})
        Update(wsid, Okay);
    EXPECT_EQ(ReadFileBytes("Updated.txt"), "005-00123") << "three bytes each";
}

TEST_F(UpdateWindow, ClosedWhileCopyingStillCopiesTheRest) {
    Update(5, [this](HWND window, std::size_t shown) {
        EXPECT_FALSE(IsWindowEnabled(owner)) << "until they are copied";
        if (shown == 2)
            PostMessageA(window, WM_CLOSE, 0, 0);
    });
    EXPECT_TRUE(FileExists("Local\\Glass.exe"));
    EXPECT_EQ(ReadFileBytes("Updated.txt"), "005");
}

TEST_F(UpdateWindow, EndOfTheMenuWhileCopyingEntersNothing) {
    Update(5, [this](HWND, std::size_t shown) {
        if (shown == 2)
            PostMessageA(owner, WM_CLOSE, 0, 0);
    });
    EXPECT_EQ(ReadFileBytes("Updated.txt"), "");
    EXPECT_TRUE(FileExists("Local\\Sweeper.exe"));
    EXPECT_FALSE(FileExists("Local\\Notebox.exe")) << "not begun";
}

} // namespace
} // namespace obrin
