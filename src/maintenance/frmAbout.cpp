#include "maintenance/frmAbout.h"

#include "maintenance/AboutTexts.h"
#include "maintenance/SystemInformation.h"
#include "platform/Font.h"
#include "resources/Ids.h"

namespace obrin {

namespace {

// Another DPI, once the dialog manager has given the controls their new places and its own font.
constexpr UINT dpiApplied = WM_APP;

RECT PlaceOf(HWND control) {
    RECT place;
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

} // namespace

void frmAbout::Show(HWND owner) {
    ShowModal(owner, IDD_ABOUT);
}

INT_PTR frmAbout::OnMessage(UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG:
        Form_Load();
        return TRUE;
    case WM_DPICHANGED:
        PostMessageA(window, dpiApplied, 0, 0);
        return FALSE;
    case dpiApplied:
        ApplyDpi();
        return TRUE;
    case WM_COMMAND:
        OnCommand(LOWORD(wParam));
        return TRUE;
    default:
        return FALSE;
    }
}

void frmAbout::OnCommand(int id) {
    if (id == IDOK || id == IDCANCEL) // the latter from the close box and the Esc key
        cmdOK_Click();
    else if (id == IDC_CMD_SYS_INFO)
        cmdSysInfo_Click();
}

void frmAbout::Form_Load() {
    picIcon = Control(IDC_PIC_ICON);
    lblTitle = Control(IDC_LBL_TITLE);
    lblVersion = Control(IDC_LBL_VERSION);
    lblDescription = Control(IDC_LBL_DESCRIPTION);
    lblDisclaimer = Control(IDC_LBL_DISCLAIMER);

    SetWindowTextA(lblVersion, VersionText(ProgramVersion()).c_str());
    SetWindowTextA(lblDescription, descriptionText);
    SetWindowTextA(lblDisclaimer, disclaimerText);
    ApplyDpi();
}

void frmAbout::cmdOK_Click() {
    EndDialog(window, 0);
}

void frmAbout::cmdSysInfo_Click() {
    LaunchSystemInfo(window);
}

// What the dialog manager does not scale by itself: the picture, the large font, and the height that the
// description takes in the dialog's font.
void frmAbout::ApplyDpi() {
    const UINT dpi = GetDpiForWindow(window);
    constexpr int iconSize = 32; // at 96 DPI
    const int pixels = MulDiv(iconSize, static_cast<int>(dpi), USER_DEFAULT_SCREEN_DPI);
    UniqueIcon newIcon(static_cast<HICON>(LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDI_OBRIN),
                                                     IMAGE_ICON, pixels, pixels, LR_DEFAULTCOLOR)));
    SendMessageA(picIcon, STM_SETICON, reinterpret_cast<WPARAM>(newIcon.get()), 0);
    icon = std::move(newIcon); // only now may the old one go

    UniqueFont newFont = MakeFont("MS Shell Dlg", 13, dpi, {.bold = true});
    SetFont(lblTitle, newFont.get());
    titleFont = std::move(newFont);

    AutoSizeDescription();
}

// The description keeps its width and gets the height of its text. What is below it moves with its lower
// edge, and the box grows or shrinks by as much, evenly up and down.
void frmAbout::AutoSizeDescription() {
    const RECT old = PlaceOf(lblDescription);
    const int width = old.right - old.left;
    const int height = MeasureText(lblDescription, descriptionText, width).cy;
    const int growth = height - (old.bottom - old.top);
    for (HWND control = GetWindow(window, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT)) {
        const RECT place = PlaceOf(control);
        if (place.top >= old.bottom)
            SetWindowPos(control, nullptr, place.left, place.top + growth, 0, 0,
                         SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    SetWindowPos(lblDescription, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);

    RECT box;
    GetWindowRect(window, &box);
    SetWindowPos(window, nullptr, box.left, box.top - growth / 2, box.right - box.left,
                 box.bottom - box.top + growth, SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace obrin
