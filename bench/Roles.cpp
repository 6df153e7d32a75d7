#include "Roles.h"

#include "Clock.h"

#include "startup/HostKeys.h"
#include "startup/HostLink.h"

#include <cstdlib>
#include <string>
#include <string_view>

namespace obrin::bench {

namespace {

constexpr UINT_PTR captionTimer = 1;

HWND CreateRoleWindow(const char* className, const char* caption, WNDPROC procedure) {
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.lpszClassName = className;
    RegisterClassExA(&windowClass);
    return CreateWindowExA(0, className, caption, WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, nullptr, nullptr,
                           windowClass.hInstance, nullptr);
}

int RunRole() {
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
    return 0;
}

LRESULT CALLBACK KeySinkProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
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

struct LateHost {
    std::string caption;
    LONGLONG shown = 0;
    LONGLONG hidden = 0;
};

LateHost& TheLateHost() {
    static LateHost host;
    return host;
}

LRESULT CALLBACK LateHostProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    LateHost& host = TheLateHost();
    switch (message) {
    case WM_TIMER:
        KillTimer(window, captionTimer);
        host.shown = Now();
        SetWindowTextA(window, host.caption.c_str());
        return 0;
    case WM_SHOWWINDOW:
        if (wParam == FALSE && host.shown != 0 && host.hidden == 0)
            host.hidden = Now();
        return 0;
    case askCaptionTime:
        return static_cast<LRESULT>(host.shown); // whole in the 64-bit build, which alone is run
    case askHidingTime:
        return static_cast<LRESULT>(host.hidden);
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcA(window, message, wParam, lParam);
    }
}

// Started as "run core\start -5".
int PlayLateHost(std::string_view station) {
    TheLateHost().caption = StationCaption(-std::stoi(std::string(station)));
    const HWND window = CreateRoleWindow(hostWindowClass, "", LateHostProcedure);
    CreateWindowExA(0, WC_STATICA, "", WS_CHILD, 0, 0, 10, 10, window, nullptr, nullptr, nullptr);
    ShowWindow(window, SW_SHOWNOACTIVATE);
    // Where in the launcher's pause the caption comes must not depend on how long a start takes.
    const auto delay = 30 + static_cast<UINT>(Now() / 10) % 20;
    SetTimer(window, captionTimer, delay, nullptr);
    return RunRole();
}

} // namespace

std::optional<int> PlayRole(std::span<char*> arguments) {
    if (arguments.size() == 1 && arguments[0] == std::string_view(keySinkRole)) {
        CreateRoleWindow("ObrinBench.KeySink", keySinkCaption, KeySinkProcedure);
        return RunRole();
    }
    if (arguments.size() == 3 && arguments[0] == std::string_view("run"))
        return PlayLateHost(arguments[2]);
    return std::nullopt;
}

} // namespace obrin::bench
