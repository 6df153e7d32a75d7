#include "platform/Events.h"

namespace obrin {

void ProcessPendingEvents() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam)); // it is for the loop outside
            return;
        }
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

int RunEvents(HWND window) {
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (IsDialogMessageA(window, &message))
            continue;
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return static_cast<int>(message.wParam);
}

void PauseForEvents() {
    constexpr DWORD longest = 10; // milliseconds
    MsgWaitForMultipleObjectsEx(0, nullptr, longest, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
}

} // namespace obrin
