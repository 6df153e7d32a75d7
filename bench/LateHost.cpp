// A host for workstation 5 that sets its caption after a random delay. It remembers when it has set the
// caption and when the menu has hidden it. It ignores keys.

#include "LateHost.h"

#include "Clock.h"

namespace {

using namespace obrin::bench;

constexpr UINT_PTR captionTimer = 1;

LONGLONG captionSet, hidden; // ticks; 0 if it has not happened yet

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_TIMER:
        KillTimer(window, captionTimer);
        captionSet = Now();
        SetWindowTextA(window, "Obrin-05");
        return 0;
    case WM_SHOWWINDOW:
        if (wParam == FALSE && captionSet != 0 && hidden == 0)
            hidden = Now();
        return 0;
    case askCaptionTime:
        return static_cast<LRESULT>(captionSet); // needs a 64-bit build, the only one that is run
    case askHidingTime:
        return static_cast<LRESULT>(hidden);
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
