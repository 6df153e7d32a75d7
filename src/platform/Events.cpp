#include "platform/Events.h"

#include "platform/Failure.h"

namespace obrin {

namespace {

// The keyboard moves between the controls of the window that has it, dialog or not.
void Dispatch(MSG& message) {
    // Enter held down counts once: what it starts takes its time.
    if (message.message == WM_KEYDOWN && message.wParam == VK_RETURN &&
        (HIWORD(message.lParam) & KF_REPEAT) != 0)
        return;
    // For the dialog manager a letter is an access key also without Alt. Here it is typed to find a node of
    // the tree.
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
            PostQuitMessage(static_cast<int>(message.wParam)); // it is for the loop outside
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
    constexpr DWORD pause = 15; // milliseconds: nobody notices it, and a core has nothing to do
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
