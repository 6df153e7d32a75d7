// A host for workstation 5 that sets its caption after a random delay. It remembers when it set the caption
// and when the menu hid its window. It ignores keys.

#include "LateHost.h"

#include "Clock.h"

namespace {

using namespace obrin::bench;

constexpr UINT_PTR captionTimer = 1;

LONGLONG captionTime, hidingTime; // ticks; 0 until then

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_TIMER:
        KillTimer(window, captionTimer);
        captionTime = Now();
        SetWindowTextA(window, "Obrin-05");
        return 0;
    case WM_SHOWWINDOW:
        if (wParam == FALSE && captionTime != 0 && hidingTime == 0)
            hidingTime = Now();
        return 0;
    case askCaptionTime:
        return static_cast<LRESULT>(captionTime); // 64 bits: bench.sh builds no 32-bit programs
    case askHidingTime:
        return static_cast<LRESULT>(hidingTime);
    case WM_KEYDOWN:
    case WM_KEYUP:
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcA(window, message, wParam, lParam);
    }
}

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = "ZafWindow";
    RegisterClassA(&windowClass);
    const HWND window = CreateWindowA(windowClass.lpszClassName, "", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200,
                                      nullptr, nullptr, instance, nullptr);
    CreateWindowA(WC_STATICA, "", WS_CHILD, 0, 0, 10, 10, window, nullptr, nullptr, nullptr);
    ShowWindow(window, SW_SHOWNOACTIVATE);
    // A random delay, so that the caption comes at any moment between two tests of the menu.
    const auto delay = 30 + static_cast<UINT>(Now() / 10) % 20; // milliseconds
    SetTimer(window, captionTimer, delay, nullptr);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
    return 0;
}
