// A fixture for tests of modal dialogs: it opens one, lets the test act while it is open, and closes it.
#pragma once

#include "support/TopWindow.h"
#include "support/WindowChecks.h"

#include <gtest/gtest.h>

#include <functional>

namespace obrin::test {

using WindowAction = std::function<void(HWND)>;

class DialogTest : public testing::Test {
protected:
    DialogTest() {
        const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES};
        InitCommonControlsEx(&controls);
    }
    ~DialogTest() override { DestroyWindow(owner); }

    /// The visible dialog whose owner is `parent`. Null if there is none.
    static HWND DialogOver(HWND parent) {
        return FindTopWindow([=](HWND window) {
            return GetWindow(window, GW_OWNER) == parent && IsWindowVisible(window) &&
                   HasClass(window, dialogClass);
        });
    }

    /// Calls `open`, which shows a dialog over `parent` and returns when the dialog is closed. Calls `act`
    /// once, as soon as the dialog is visible and `isReady`, and then closes the dialog as its close box
    /// does. Returns whether there was a dialog.
    static bool ActInDialog(HWND parent, const std::function<void()>& open, const WindowAction& act,
                            const std::function<bool(HWND)>& isReady = IsWindowVisible) {
        Visit visit{act, isReady};
        const auto timer = reinterpret_cast<UINT_PTR>(&visit);
        SetTimer(parent, timer, USER_TIMER_MINIMUM, LookForDialog);
        open();
        KillTimer(parent, timer);
        return visit.isDone;
    }

    const HWND owner = CreateWindowExA(0, "STATIC", "", WS_OVERLAPPEDWINDOW, 0, 0, 700, 500, nullptr, nullptr,
                                       nullptr, nullptr);

private:
    struct Visit {
        const WindowAction& act;
        const std::function<bool(HWND)>& isReady;
        bool isDone = false;
    };

    static void CALLBACK LookForDialog(HWND parent, UINT, UINT_PTR timer, DWORD) {
        auto& visit = *reinterpret_cast<Visit*>(timer);
        const HWND dialog = DialogOver(parent);
        if (visit.isDone || dialog == nullptr || !visit.isReady(dialog))
            return;
        visit.isDone = true;
        visit.act(dialog);
        PostMessageA(dialog, WM_CLOSE, 0, 0);
    }
};

} // namespace obrin::test
