#include "maintenance/frmUpdate.h"

#include "platform/File.h"
#include "platform/ScratchFolder.h"
#include "resources/Ids.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

// What happens to the update window while it is modal: hooks see its messages without the window's knowing.
struct Script {
    std::vector<std::string> captions; // of the progress text, in order
    int resizesLeft = 0;
    int closeAtCaption = -1;
    bool destroyOwner = false;
    bool hidden = false;         // while a file was copied
    bool ownerWasUsable = false; // while a file was copied
};
Script* script;

void Act(HWND dialog) {
    script->hidden |= !IsWindowVisible(dialog);
    script->ownerWasUsable |= IsWindowEnabled(GetWindow(dialog, GW_OWNER)) != FALSE;
    const auto shown = static_cast<int>(script->captions.size());
    if (shown == script->closeAtCaption) {
        if (script->destroyOwner)
            DestroyWindow(GetWindow(dialog, GW_OWNER));
        else
            PostMessageA(dialog, WM_CLOSE, 0, 0);
        return;
    }
    if (script->captions.back() != "Updating:\r\nComplete")
        return;
    if (script->resizesLeft-- > 0) {
        RECT place;
        GetWindowRect(dialog, &place);
        SetWindowPos(dialog, nullptr, 0, 0, place.right - place.left + 10, place.bottom - place.top + 10,
                     SWP_NOMOVE);
    } else if (script->closeAtCaption < 0) {
        PostMessageA(dialog, WM_COMMAND, IDOK, 0);
    }
}

LRESULT CALLBACK Watch(int code, WPARAM wParam, LPARAM lParam) {
    const auto& message = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    if (code == HC_ACTION && message.message == WM_SETTEXT && GetDlgCtrlID(message.hwnd) == IDC_LABEL1) {
        script->captions.emplace_back(reinterpret_cast<const char*>(message.lParam));
        Act(GetParent(message.hwnd));
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

class UpdateWindow : public testing::Test {
protected:
    UpdateWindow() {
        script = &played;
        SetEnvironmentVariableA("Tessel", "Local");
        CreateDirectoryA("Local", nullptr);
        CreateDirectoryA("Tessel", nullptr);
        CreateDirectoryA("Tessel\\Exe", nullptr);
        for (const char* name : names)
            WriteFileBytes(std::string("Tessel\\Exe\\") + name, name);
        owner = CreateWindowExA(0, "STATIC", "", WS_OVERLAPPEDWINDOW, 0, 0, 700, 500, nullptr, nullptr,
                                nullptr, nullptr);
        hook = SetWindowsHookExA(WH_CALLWNDPROCRET, Watch, nullptr, GetCurrentThreadId());
    }
    ~UpdateWindow() override {
        UnhookWindowsHookEx(hook);
        DestroyWindow(owner);
    }

    static constexpr const char* names[] = {"Tessel.exe", "Sweeper.exe", "Notebox.exe", "ShowAllFenns.exe",
                                            "Glass.exe"};

    std::vector<std::string> Captions(int rounds) const {
        std::vector<std::string> captions;
        for (int i = 0; i < rounds; ++i) {
            for (const char* name : names)
                captions.push_back(std::string("Updating:\r\n") + name);
            captions.emplace_back("Updating:\r\nComplete");
        }
        return captions;
    }

    test::ScratchFolder folder;
    Script played;
    HWND owner;
    HHOOK hook;
};

TEST_F(UpdateWindow, CopiesOnceAndEntersTheWorkstation) {
    CheckWorkstationUpdate(owner, 5);
    EXPECT_EQ(played.captions, Captions(1));
    EXPECT_FALSE(played.hidden);
    for (const char* name : names)
        EXPECT_EQ(ReadFileBytes(std::string("Local\\") + name), name);
    EXPECT_EQ(ReadFileBytes("Updated.txt"), "005");
    CheckWorkstationUpdate(owner, 5);
    EXPECT_EQ(played.captions.size(), 6U) << "no second window";
}

TEST_F(UpdateWindow, CopiesAgainOnEveryResize) {
    played.resizesLeft = 2;
    CheckWorkstationUpdate(owner, 5);
    EXPECT_EQ(played.captions, Captions(3));
}

TEST_F(UpdateWindow, MissingSourcesAreNobodysBusiness) {
    for (const char* name : names)
        DeleteFileA((std::string("Tessel\\Exe\\") + name).c_str());
    WriteFileBytes("Updated.txt", "001002X");
    CheckWorkstationUpdate(owner, 9);
    EXPECT_EQ(played.captions, Captions(1));
    EXPECT_EQ(ReadFileBytes("Updated.txt"), "001002009");
}

TEST_F(UpdateWindow, ClosedWhileCopyingStillCopiesTheRest) {
    played.closeAtCaption = 2;
    CheckWorkstationUpdate(owner, 5);
    EXPECT_FALSE(played.ownerWasUsable) << "until they are copied";
    EXPECT_TRUE(FileExists("Local\\Glass.exe"));
    EXPECT_EQ(ReadFileBytes("Updated.txt"), "005");
}

TEST_F(UpdateWindow, EndOfTheMenuWhileCopyingEntersNothing) {
    played.closeAtCaption = 2;
    played.destroyOwner = true;
    CheckWorkstationUpdate(owner, 5);
    EXPECT_EQ(ReadFileBytes("Updated.txt"), "");
}

} // namespace
} // namespace obrin
