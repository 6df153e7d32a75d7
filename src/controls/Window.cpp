#include "controls/Window.h"

#include "platform/Failure.h"

#include <algorithm>

namespace obrin {

HWND CreateControl(HWND parent, const char* controlClass, int id, DWORD style, const char* text,
                   DWORD extendedStyle) {
    const HWND control = CreateWindowExA(
        extendedStyle, controlClass, text, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | style, 0, 0, 0, 0,
        parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), Instance(), nullptr);
    if (control == nullptr)
        ThrowLastError("Creating the menu window");
    return control;
}

namespace {

LRESULT CALLBACK HeldEnterProcedure(HWND button, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                    DWORD_PTR) noexcept {
    // While Enter is held down, the button claims the repeated keys. The dialog manager then does not click
    // the default button, but sends the keys to this button, which ignores Enter.
    const auto* key = reinterpret_cast<const MSG*>(lParam);
    if (message == WM_GETDLGCODE && key != nullptr && key->message == WM_KEYDOWN &&
        key->wParam == VK_RETURN && (HIWORD(key->lParam) & KF_REPEAT) != 0)
        return DLGC_WANTMESSAGE | DefSubclassProc(button, message, wParam, lParam);
    return DefSubclassProc(button, message, wParam, lParam);
}

} // namespace

void IgnoreHeldEnter(HWND button) {
    SetWindowSubclass(button, HeldEnterProcedure, 0, 0);
}

void CentreOnScreen(HWND window, SIZE outer) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoA(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &monitor);
    const RECT& work = monitor.rcWork;
    const LONG width = std::min(outer.cx, work.right - work.left);
    const LONG height = std::min(outer.cy, work.bottom - work.top);
    SetWindowPos(window, nullptr, (work.left + work.right - width) / 2, (work.top + work.bottom - height) / 2,
                 width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

namespace {

BOOL CALLBACK AddToList(HWND descendant, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(descendant);
    return TRUE;
}

} // namespace

std::vector<HWND> ListDescendants(HWND window) {
    std::vector<HWND> windows;
    EnumChildWindows(window, AddToList, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

} // namespace obrin
