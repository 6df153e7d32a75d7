#include "controls/Link.h"

#include "platform/Failure.h"
#include "platform/Handle.h"

#include <oleacc.h>

namespace obrin {

namespace {

void Click(HWND label) {
    SendMessageA(GetParent(label), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(label), STN_CLICKED),
                 reinterpret_cast<LPARAM>(label));
}

// Windows hides focus rectangles until the user presses a key.
void DrawFocus(HWND label) {
    if (GetFocus() != label || (SendMessageA(label, WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS) != 0)
        return;
    RECT inner;
    GetClientRect(label, &inner);
    const HDC screen = GetDC(label);
    DrawFocusRect(screen, &inner);
    ReleaseDC(label, screen);
}

LRESULT OnMessage(HWND label, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_GETDLGCODE: {
        // The link itself handles Enter, not the default button.
        const auto* key = reinterpret_cast<const MSG*>(lParam);
        return key != nullptr && key->wParam == VK_RETURN ? DLGC_WANTMESSAGE : DLGC_STATIC;
    }
    case WM_KEYDOWN:
        if ((wParam == VK_RETURN || wParam == VK_SPACE) && (HIWORD(lParam) & KF_REPEAT) == 0)
            Click(label);
        return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_UPDATEUISTATE: {
        const LRESULT result = DefSubclassProc(label, message, wParam, lParam);
        InvalidateRect(label, nullptr, TRUE);
        return result;
    }
    case WM_PAINT: {
        // Repaints the whole label: a focus rectangle that is drawn twice in the same place disappears.
        InvalidateRect(label, nullptr, TRUE);
        const LRESULT result = DefSubclassProc(label, message, wParam, lParam);
        DrawFocus(label);
        return result;
    }
    default:
        return DefSubclassProc(label, message, wParam, lParam);
    }
}

LRESULT CALLBACK Procedure(HWND label, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                           DWORD_PTR) noexcept {
    return RunOrEndProgram([=] { return OnMessage(label, message, wParam, lParam); });
}

// Tells screen readers that the label is a link. Without this service of Windows it remains a label.
void AnnounceAsLink(HWND label) {
    void* created = nullptr;
    if (FAILED(CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                                &created)))
        return;
    const UniqueObject<IAccPropServices> services(static_cast<IAccPropServices*>(created));
    VARIANT role{};
    role.vt = VT_I4;
    role.lVal = ROLE_SYSTEM_LINK;
    services->SetHwndProp(label, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, PROPID_ACC_ROLE, role);
}

} // namespace

LRESULT UseLinkColours(HDC context) {
    SetTextColor(context, GetSysColor(COLOR_HOTLIGHT));
    SetBkMode(context, TRANSPARENT);
    return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE));
}

void MakeLink(HWND label) {
    SetWindowSubclass(label, Procedure, 0, 0);
    AnnounceAsLink(label);
}

} // namespace obrin
