// Lets a test act while a modal window of its own thread is up.
#pragma once

#include "platform/WindowsApi.h"

#include <functional>
#include <utility>

namespace obrin::test {

/// As long as the object lives, `action` is called again and again with the modal window on top of `owner`.
class ModalAction {
public:
    ModalAction(HWND ownerWindow, std::function<void(HWND)> whatToDo)
        : owner(ownerWindow)
        , action(std::move(whatToDo)) {
        current = this;
        timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, Turn);
    }
    ModalAction(const ModalAction&) = delete;
    ModalAction& operator=(const ModalAction&) = delete;
    ~ModalAction() {
        KillTimer(nullptr, timer);
        current = nullptr;
    }

private:
    static void CALLBACK Turn(HWND, UINT, UINT_PTR, DWORD) {
        HWND top = current->owner;
        while (GetLastActivePopup(top) != top)
            top = GetLastActivePopup(top);
        if (top != current->owner && IsWindowVisible(top))
            current->action(top);
    }

    static inline ModalAction* current = nullptr;
    HWND owner;
    std::function<void(HWND)> action;
    UINT_PTR timer;
};

} // namespace obrin::test
