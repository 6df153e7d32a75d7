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
    if (id == IDOK || id == IDCANCEL) // IDCANCEL comes from the close box and the Esc key
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

    // AdjustLayout changes the height of the box. Its centre stays where it is.
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

// Makes the description as high as its text and moves the controls below it. Makes the disclaimer higher if
// its text does not fit, and moves the buttons beside it down.
void frmAbout::AdjustLayout(DialogLayout& layout) const {
    const auto missingHeight = [&](const RECT& bounds, const char* text) {
        return MeasureText(layout.font.get(), text, bounds.right - bounds.left).cy -
               (bounds.bottom - bounds.top);
    };
    RECT& description = layout.BoundsOf(lblDescription);
    const LONG oldBottom = description.bottom;
    const LONG growth = missingHeight(description, descriptionText);
    description.bottom += growth;
    for (auto& [control, bounds] : layout.controls)
        OffsetRect(&bounds, 0, bounds.top >= oldBottom ? growth : 0);

    RECT& disclaimer = layout.BoundsOf(lblDisclaimer);
    const LONG disclaimerGrowth = std::max(0L, missingHeight(disclaimer, disclaimerText));
    disclaimer.bottom += disclaimerGrowth;
    for (const int button : {IDOK, IDC_CMD_SYS_INFO})
        OffsetRect(&layout.BoundsOf(Control(button)), 0, disclaimerGrowth);
    layout.inner.cy += growth + disclaimerGrowth;
}

void frmAbout::OnLayout() {
    constexpr int iconSize = 32; // at 96 DPI
    const int pixels = MulDiv(iconSize, static_cast<int>(dpi), USER_DEFAULT_SCREEN_DPI);
    UniqueIcon newIcon(static_cast<HICON>(
        LoadImageA(Instance(), MAKEINTRESOURCEA(IDI_OBRIN), IMAGE_ICON, pixels, pixels, LR_DEFAULTCOLOR)));
    SendMessageA(picIcon, STM_SETICON, reinterpret_cast<WPARAM>(newIcon.get()), 0);
    icon = std::move(newIcon); // deletes the old icon, which picIcon no longer uses

    UniqueFont newFont = MakeFont(shellDialog, 13, dpi, {.bold = true});
    SetFont(lblTitle, newFont.get());
    titleFont = std::move(newFont);
}

} // namespace obrin
