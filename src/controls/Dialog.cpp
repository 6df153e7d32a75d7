#include "controls/Dialog.h"

#include "controls/Font.h"
#include "controls/Window.h"
#include "platform/Failure.h"
#include "resources/Ids.h"

namespace obrin {

INT_PTR Dialog::ShowModal(HWND owner, int resource) {
    const INT_PTR result = DialogBoxParamA(Instance(), MAKEINTRESOURCEA(resource), owner, Procedure,
                                           reinterpret_cast<LPARAM>(this));
    if (result == -1 && window == nullptr)
        ThrowLastError("Opening a dialog");
    window = nullptr;
    return result;
}

void Dialog::ShowModeless(HWND owner, int resource) {
    const HWND opened = CreateDialogParamA(Instance(), MAKEINTRESOURCEA(resource), owner, Procedure,
                                           reinterpret_cast<LPARAM>(this));
    if (opened == nullptr)
        ThrowLastError("Opening a dialog");
    ShowWindow(opened, SW_SHOWNOACTIVATE);
}

INT_PTR CALLBACK Dialog::Procedure(HWND dialogWindow, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrA(dialogWindow, DWLP_USER, lParam);
        auto* created = reinterpret_cast<Dialog*>(lParam);
        created->window = dialogWindow;
        created->dpi = GetDpiForWindow(dialogWindow);
        created->design.emplace(dialogWindow);
        const HICON icon = LoadIconA(Instance(), MAKEINTRESOURCEA(IDI_OBRIN));
        SendMessageA(dialogWindow, WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(icon));
    }
    auto* dialog = reinterpret_cast<Dialog*>(GetWindowLongPtrA(dialogWindow, DWLP_USER));
    if (dialog == nullptr)
        return FALSE;
    return RunOrEndProgram([=] { return dialog->Handle(message, wParam, lParam); });
}

INT_PTR Dialog::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    // The dialog manager must not handle these two messages: it would scale the current positions, and the
    // rounding errors would add up.
    case WM_GETDPISCALEDSIZE:
        *reinterpret_cast<SIZE*>(lParam) = OuterSizeAt(static_cast<UINT>(wParam));
        SetWindowLongPtrA(window, DWLP_MSGRESULT, TRUE);
        return TRUE;
    case WM_DPICHANGED: {
        const auto* suggested = reinterpret_cast<const RECT*>(lParam);
        ApplyLayout(LOWORD(wParam), {suggested->left, suggested->top});
        return TRUE;
    }
    case WM_SYSCOLORCHANGE:
    case WM_SETTINGCHANGE:
        for (const HWND control : ListDescendants(window))
            SendMessageA(control, message, wParam, lParam);
        [[fallthrough]];
    case WM_THEMECHANGED: { // Windows itself sends this one to the controls
        RECT bounds;
        GetWindowRect(window, &bounds);
        ApplyLayout(dpi, {bounds.left, bounds.top});
        return FALSE;
    }
    default:
        return OnMessage(message, wParam, lParam);
    }
}

DialogLayout Dialog::LayoutAt(UINT anyDpi) const {
    DialogLayout layout = design->LayoutAt(anyDpi);
    AdjustLayout(layout);
    return layout;
}

SIZE Dialog::OuterSize(const DialogLayout& layout, UINT anyDpi) const {
    RECT outer{0, 0, layout.inner.cx, layout.inner.cy};
    AdjustWindowRectExForDpi(&outer, GetWindowStyle(window), FALSE, GetWindowExStyle(window), anyDpi);
    return {outer.right - outer.left, outer.bottom - outer.top};
}

void Dialog::ApplyLayout(UINT newDpi, POINT topLeft) {
    dpi = newDpi;
    DialogLayout layout = LayoutAt(dpi);
    for (const auto& [control, bounds] : layout.controls) {
        SetFont(control, layout.font.get());
        SetWindowPos(control, nullptr, bounds.left, bounds.top, bounds.right - bounds.left,
                     bounds.bottom - bounds.top, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    font.swap(layout.font); // `layout` deletes the old font, which no control uses any more
    OnLayout();
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    // Comes last, because handlers of the resize may close the dialog.
    const SIZE outer = OuterSize(layout, dpi);
    SetWindowPos(window, nullptr, topLeft.x, topLeft.y, outer.cx, outer.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace obrin
