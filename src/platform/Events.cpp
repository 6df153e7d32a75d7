#include "platform/Events.h"

#include "platform/Failure.h"

namespace obrin {

namespace {

void Dispatch(MSG& message) {
    // Enter that is held down must not start a program again and again.
    if (message.message == WM_KEYDOWN && message.wParam == VK_RETURN &&
        (HIWORD(message.lParam) & KF_REPEAT) != 0)
        return;
    // The dialog manager also treats a letter without Alt as an access key. Here the operator types letters
    // to find a node of the tree.
    if (message.message != WM_CHAR && IsDialogMessageA(GetAncestor(message.hwnd, GA_ROOT), &message))
        return;
    TranslateMessage(&message);
    DispatchMessageA(&message);
}

} // namespace

bool ProcessPendingEvents() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam)); // for RunEvents
            return false;
        }
        Dispatch(message);
    }
    return true;
}

int RunEvents() noexcept {
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        Dispatch(message);
    return static_cast<int>(message.wParam);
}

bool WaitUntil(HWND window, const std::function<bool()>& condition) {
    constexpr DWORD pause = 15; // milliseconds: too short to notice, long enough to leave the processor idle
    while (IsWindow(window)) {
        if (condition())
            return true;
        if (MsgWaitForMultipleObjectsEx(0, nullptr, pause, QS_ALLINPUT, MWMO_INPUTAVAILABLE) == WAIT_FAILED)
            ThrowLastError("Waiting for the host or an event of the menu window");
        if (!ProcessPendingEvents())
            return false;
    }
    return false;
}

} // namespace obrin
