#include "controls/GroupBox.h"

#include "controls/Theme.h"
#include "controls/Window.h"

namespace obrin {

namespace {

void FillBackground(HWND box, HDC target) {
    RECT inner;
    GetClientRect(box, &inner);
    FillRect(target, &inner, GetSysColorBrush(COLOR_BTNFACE));
}

LRESULT CallOriginal(HWND box, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto original = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(box, GWLP_USERDATA));
    return CallWindowProcW(original, box, message, wParam, lParam);
}

// Draws the background, then the stock group box with its caption and border.
LRESULT Print(HWND box, HDC target, LPARAM flags) {
    FillBackground(box, target);
    return CallOriginal(box, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(target), flags);
}

// Paints background and border in one step, so that the border does not flicker during a resize.
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
        // WM_PAINT fills the box. A themed button passes its own device context and gets its background here.
        if (WindowFromDC(target) != box)
            FillBackground(box, target);
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
