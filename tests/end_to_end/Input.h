// Keys and clicks as an operator makes them. The real ones go to the window in front.
#pragma once

#include "end_to_end/Installation.h"
#include "support/TopWindow.h"

namespace obrin::test {

constexpr DWORD leftClick = MOUSEEVENTF_LEFTDOWN | MOUSEEVENTF_LEFTUP;
constexpr DWORD rightClick = MOUSEEVENTF_RIGHTDOWN | MOUSEEVENTF_RIGHTUP;

inline void PressKey(BYTE key) {
    keybd_event(key, 0, 0, 0);
    keybd_event(key, 0, KEYEVENTF_KEYUP, 0);
}

inline void PressWithAlt(BYTE key) {
    keybd_event(VK_MENU, 0, 0, 0);
    PressKey(key);
    keybd_event(VK_MENU, 0, KEYEVENTF_KEYUP, 0);
}

/// Posts a key to a control as the keyboard does while it is held down: pressed once and repeated. A real key
/// would be released by the display as soon as another window comes to the front.
inline void HoldKey(HWND control, WPARAM key, int repeats) {
    constexpr LPARAM pressed = 1, repeated = pressed | LPARAM{KF_REPEAT} << 16;
    PostMessageA(control, WM_KEYDOWN, key, pressed);
    for (int i = 0; i < repeats; ++i)
        PostMessageA(control, WM_KEYDOWN, key, repeated);
}

/// The popup menu on the screen, or null.
inline HWND ShownPopup() {
    constexpr ULONG_PTR popupMenuClass = 32768;
    return FindTopWindow([](HWND window) {
        return GetClassWord(window, GCW_ATOM) == popupMenuClass && IsWindowVisible(window);
    });
}

/// Clicks in the middle of a control.
inline void Click(HWND control) {
    EXPECT_TRUE(KeepsForeground(GetAncestor(control, GA_ROOT)));
    RECT place;
    GetWindowRect(control, &place);
    PointAt({(place.left + place.right) / 2, (place.top + place.bottom) / 2});
    mouse_event(leftClick, 0, 0, 0, 0);
}

/// A point on the text of a visible row of the tree, in screen coordinates. Rows and depths count from 0.
inline POINT PlaceOfRow(HWND tree, int row, int depth) {
    const int height = TreeView_GetItemHeight(tree);
    POINT place{static_cast<int>(TreeView_GetIndent(tree)) * (depth + 1) + 10, height * row + height / 2};
    ClientToScreen(tree, &place);
    return place;
}

inline void ClickRow(HWND tree, int row, int depth, DWORD downAndUp, int times = 1) {
    EXPECT_TRUE(KeepsForeground(GetAncestor(tree, GA_ROOT)));
    const POINT place = PlaceOfRow(tree, row, depth);
    PointAt(place);
    EXPECT_EQ(WindowFromPoint(place), tree);
    for (int i = 0; i < times; ++i)
        mouse_event(downAndUp, 0, 0, 0, 0);
}

} // namespace obrin::test
