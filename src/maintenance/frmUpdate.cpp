#include "maintenance/frmUpdate.h"

#include "common/Installation.h"
#include "common/Text.h"
#include "controls/Font.h"
#include "controls/Window.h"
#include "maintenance/UpdateFiles.h"
#include "platform/Events.h"
#include "platform/Workstation.h"
#include "resources/Ids.h"

#include <string>

namespace obrin {

namespace {

// Starts the first copy. Under Wine the first WM_SIZE arrives too early, before the window is visible.
constexpr UINT firstShown = WM_APP;

constexpr UINT neverSent = WM_APP + 1;

void CopyIgnoringErrors(const char* source, const std::string& destination) {
    CopyFileA(source, destination.c_str(), FALSE);
}

} // namespace

void frmUpdate::Show(HWND owner) {
    ShowModal(owner, IDD_UPDATE);
}

INT_PTR frmUpdate::OnMessage(UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG:
        Form_Load();
        PostMessageA(window, firstShown, 0, 0);
        return TRUE;
    case firstShown:
        shown = true;
        Form_Resize();
        return TRUE;
    case WM_SIZE:
        if (shown)
            Form_Resize();
        return TRUE;
    case WM_COMMAND:
        // Enter sends IDOK even while the button is hidden. IDCANCEL comes from the close box or Esc.
        if ((LOWORD(wParam) == IDOK && IsWindowVisible(Command1)) || LOWORD(wParam) == IDCANCEL)
            Command1_Click();
        return TRUE;
    default:
        return FALSE;
    }
}

void frmUpdate::Form_Load() {
    Label1 = Control(IDC_LABEL1);
    Label2 = Control(IDC_LABEL2);
    Command1 = Control(IDOK);
    IgnoreHeldEnter(Command1); // Enter that started the program may still be down and would close the window
    OnLayout();

    // The offsets from the menu window are a quarter of this window's height and half of its width.
    RECT menu;
    RECT own;
    GetWindowRect(GetWindow(window, GW_OWNER), &menu);
    GetWindowRect(window, &own);
    const int top = menu.top + (own.bottom - own.top) / 2 / 2;
    const int left = menu.left + (own.right - own.left) / 2;
    SetWindowPos(window, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void frmUpdate::OnLayout() {
    UniqueFont newFont = MakeFont(georgia, 10, dpi);
    SetFont(Label1, newFont.get());
    SetFont(Label2, newFont.get());
    labelFont = std::move(newFont);
    PlaceLabel();
}

// The window stays open until all files are copied: the register must not name the workstation earlier.
void frmUpdate::Command1_Click() {
    closing = true;
    if (pendingCopies == 0)
        EndDialog(window, 0);
}

void frmUpdate::PlaceLabel() {
    RECT inner;
    GetClientRect(window, &inner);
    const int height = inner.bottom;
    const int margin = height / 16;
    SetWindowPos(Label1, nullptr, margin, height / 4, inner.right - 2 * margin, height / 4,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void frmUpdate::Form_Resize() {
    PlaceLabel();
    // CopyFiles processes events, so a resize can arrive while it runs. Its copy sequence then comes next.
    if (++pendingCopies > 1)
        return;
    for (; pendingCopies > 0; --pendingCopies)
        CopyFiles();
    if (closing)
        EndDialog(window, 0);
}

void frmUpdate::CopyFiles() {
    const auto show = [this](const char* what) {
        SetWindowTextA(Label1, (std::string("Updating:\r\n") + what).c_str());
        // Paints now, because a copy can take minutes.
        RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        // Wine updates the screen only when the thread looks for a message.
        MSG none;
        PeekMessageA(&none, window, neverSent, neverSent, PM_NOREMOVE);
    };
    const LeadByteTest isLeadByte = CodePageLeadByteTest();
    for (const auto& [source, destination] : updateFiles) {
        // The end of the Windows session can destroy the window in ProcessPendingEvents.
        if (!IsWindow(window))
            return;
        show(destination);
        CopyIgnoringErrors(source,
                           EnsureTrailingBackslash(EnvironmentVariable(localHostVariable), isLeadByte) +
                               destination);
        ProcessPendingEvents();
    }
    show("Complete");
    ShowWindow(Command1, SW_SHOW);
    SetFocus(Command1);
}

} // namespace obrin
