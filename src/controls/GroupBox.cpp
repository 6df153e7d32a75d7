#include "controls/GroupBox.h"

#include "controls/Theme.h"
#include "controls/Window.h"

namespace obrin {

namespace {

void Fill(HWND box, HDC target) {
    RECT inner;
    GetClientRect(box, &inner);
    FillRect(target, &inner, GetSysColorBrush(COLOR_BTNFACE));
}

LRESULT CallOriginal(HWND box, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto ownProcedure = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(box, GWLP_USERDATA));
    return CallWindowProcW(ownProcedure, box, message, wParam, lParam);
}

// The inside, then caption and border on it.
LRESULT Print(HWND box, HDC target, LPARAM what) {
    Fill(box, target);
    return CallOriginal(box, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(target), what);
}

// Inside and border reach the screen at once: erased first, the border would flicker while the window is
// resized.
void Paint(HWND box) {
    PAINTSTRUCT paint;
    const HDC screen = BeginPaint(box, &paint);
    RECT inner;
    GetClientRect(box, &inner);
    PaintBuffered(screen, inner, [=](HDC target) { Print(box, target, PRF_CLIENT); });
    EndPaint(box, &paint);
}

LRESULT CALLBACK Procedure(HWND box, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    const auto target = reinterpret_cast<HDC>(wParam);
    switch (message) {
    case WM_COMMAND:
    case WM_NOTIFY:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORSTATIC:
        return SendMessageA(GetParent(box), message, wParam, lParam);
    case WM_ERASEBKGND:
        // Left to the paint that follows on the box's own screen. A themed button asks for its background in
        // its own, which nothing follows.
        if (WindowFromDC(target) != box)
            Fill(box, target);
        return TRUE;
    case WM_PRINTCLIENT:
        return Print(box, target, lParam);
    case WM_PAINT:
        Paint(box);
        return 0;
    default:
        return CallOriginal(box, message, wParam, lParam);
    }
}

} // namespace

void MakeContainer(HWND groupBox) {
    SetWindowLongPtrA(groupBox, GWLP_USERDATA,
                      reinterpret_cast<LONG_PTR>(ReplaceWindowProcedure(groupBox, Procedure)));
}

} // namespace obrin
