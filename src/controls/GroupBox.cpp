#include "controls/GroupBox.h"

#include "platform/Handle.h"

namespace obrin {

namespace {

void FillBackground(HWND box, HDC target) {
    RECT inner;
    GetClientRect(box, &inner);
    FillRect(target, &inner, GetSysColorBrush(COLOR_BTNFACE));
}

// Draws the background, then the stock group box with its caption and border.
LRESULT Print(HWND box, HDC target, LPARAM flags) {
    FillBackground(box, target);
    return DefSubclassProc(box, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(target), flags);
}

// Paints into a bitmap and copies that to the screen, so that the border does not flicker during a resize.
void Paint(HWND box) {
    PAINTSTRUCT paint;
    const HDC screen = BeginPaint(box, &paint);
    RECT inner;
    GetClientRect(box, &inner);
    const UniqueBitmap bitmap(CreateCompatibleBitmap(screen, inner.right, inner.bottom));
    const UniqueDc buffer(CreateCompatibleDC(screen));
    const HGDIOBJ old = SelectObject(buffer.get(), bitmap.get());
    Print(box, buffer.get(), PRF_CLIENT);
    BitBlt(screen, 0, 0, inner.right, inner.bottom, buffer.get(), 0, 0, SRCCOPY);
    SelectObject(buffer.get(), old);
    EndPaint(box, &paint);
}

LRESULT CALLBACK Procedure(HWND box, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                           DWORD_PTR) noexcept {
    const auto target = reinterpret_cast<HDC>(wParam);
    switch (message) {
    case WM_COMMAND:
    case WM_NOTIFY:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORSTATIC:
        return SendMessageA(GetParent(box), message, wParam, lParam);
    case WM_ERASEBKGND:
        // WM_PAINT fills the box itself. A themed button in the box sends this message with its own device
        // context, to get its background.
        if (WindowFromDC(target) != box)
            FillBackground(box, target);
        return TRUE;
    case WM_PRINTCLIENT:
        return Print(box, target, lParam);
    case WM_PAINT:
        Paint(box);
        return 0;
    default:
        return DefSubclassProc(box, message, wParam, lParam);
    }
}

} // namespace

void MakeContainer(HWND groupBox) {
    SetWindowSubclass(groupBox, Procedure, 0, 0);
}

} // namespace obrin
