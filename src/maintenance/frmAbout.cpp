#include "maintenance/frmAbout.h"

#include "controls/Font.h"
#include "maintenance/AboutTexts.h"
#include "maintenance/SystemInformation.h"
#include "resources/Ids.h"

#include <algorithm>

namespace obrin {

void frmAbout::Show(HWND owner) {
    ShowModal(owner, IDD_ABOUT);
}

INT_PTR frmAbout::OnMessage(UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG:
        Form_Load();
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

    // Higher or lower than the template says, evenly up and down.
    RECT box;
    GetWindowRect(window, &box);
    ApplyLayout(dpi, {box.left, (box.top + box.bottom - OuterSizeAt(dpi).cy) / 2});
}

void frmAbout::cmdOK_Click() {
    EndDialog(window, 0);
}

void frmAbout::cmdSysInfo_Click() {
    LaunchSystemInfo(window);
}

// The description keeps its width and gets the height of its text; what is below it moves with its lower
// edge. A disclaimer that needs more than its room gets that too, and the buttons beside it stay at the
// bottom.
void frmAbout::AdjustLayout(DialogLayout& layout) const {
    const auto missing = [&](const RECT& place, const char* text) {
        return MeasureText(layout.font.get(), text, place.right - place.left).cy - (place.bottom - place.top);
    };
    RECT& description = layout.BoundsOf(lblDescription);
    const LONG below = description.bottom;
    const LONG growth = missing(description, descriptionText);
    description.bottom += growth;
    for (auto& [control, place] : layout.places)
        OffsetRect(&place, 0, place.top >= below ? growth : 0);

    RECT& disclaimer = layout.BoundsOf(lblDisclaimer);
    const LONG more = std::max(0L, missing(disclaimer, disclaimerText));
    disclaimer.bottom += more;
    for (const int button : {IDOK, IDC_CMD_SYS_INFO})
        OffsetRect(&layout.BoundsOf(Control(button)), 0, more);
    layout.inner.cy += growth + more;
}

// The picture and the large font.
void frmAbout::OnLayout() {
    constexpr int iconSize = 32; // at 96 DPI
    const int pixels = MulDiv(iconSize, static_cast<int>(dpi), USER_DEFAULT_SCREEN_DPI);
    UniqueIcon newIcon(static_cast<HICON>(
        LoadImageA(Instance(), MAKEINTRESOURCEA(IDI_OBRIN), IMAGE_ICON, pixels, pixels, LR_DEFAULTCOLOR)));
    SendMessageA(picIcon, STM_SETICON, reinterpret_cast<WPARAM>(newIcon.get()), 0);
    icon = std::move(newIcon); // only now may the old one go

    UniqueFont newFont = MakeFont(shellDialog, 13, dpi, {.bold = true});
    SetFont(lblTitle, newFont.get());
    titleFont = std::move(newFont);
}

} // namespace obrin
