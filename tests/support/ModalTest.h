// Tests of modal windows: they act while the window is up.
#pragma once

#include "resources/Ids.h"
#include "support/LocalMachine.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <functional>

namespace obrin::test {

class ModalTest : public testing::Test {
protected:
    ModalTest() {
        current = this;
        const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES};
        InitCommonControlsEx(&controls);
    }
    ~ModalTest() override { DestroyWindow(owner); }

    /// Calls `show`, and until it returns, again and again `act` with the modal window on top of the owner.
    void While(const std::function<void()>& show, const std::function<void(HWND)>& act) {
        action = act;
        const UINT_PTR timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, Turn);
        show();
        KillTimer(nullptr, timer);
    }

    const HWND owner = CreateWindowExA(0, "STATIC", "", WS_OVERLAPPEDWINDOW, 0, 0, 700, 500, nullptr, nullptr,
                                       nullptr, nullptr);

private:
    static void CALLBACK Turn(HWND, UINT, UINT_PTR, DWORD) {
        HWND top = current->owner;
        while (GetLastActivePopup(top) != top)
            top = GetLastActivePopup(top);
        if (top != current->owner && IsWindowVisible(top))
            current->action(top);
    }

    static inline ModalTest* current = nullptr;
    std::function<void(HWND)> action;
};

} // namespace obrin::test
