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

// The first resize notification, which starts the first copy. The dialog manager's own comes at another
// moment on each platform, on some before the window can be seen.
constexpr UINT firstShown = WM_APP;

constexpr UINT neverSent = WM_APP + 1;

// A file that cannot be copied is passed over: the next one is tried, and nobody is told.
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
        // Enter stands for the button also while it is hidden. The close box may be clicked at any time.
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
    IgnoreHeldEnter(Command1); // held since the program was run, it would close the window at once
    OnLayout();

    // A quarter of its own height below the menu window's top and half its own width right of its left edge.
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

// Closed while files are copied, the window stays until they are: the register will say that the workstation
// has them all, and the menu must not be used meanwhile.
void frmUpdate::Command1_Click() {
    closing = true;
    if (copiesDue == 0)
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
    // A resize can arrive while files are copied, from the events processed between two of them. Its copy
    // sequence then follows the one at work.
    if (++copiesDue > 1)
        return;
    for (; copiesDue > 0; --copiesDue)
        CopyFiles();
    if (closing)
        EndDialog(window, 0);
}

void frmUpdate::CopyFiles() {
    const auto show = [this](const char* what) {
        SetWindowTextA(Label1, (std::string("Updating:\r\n") + what).c_str());
        // Now: a copy can take minutes, and nothing is painted meanwhile.
        RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        // Some platforms bring it to the screen only when the thread looks for a message: for one that never
        // comes.
        MSG none;
        PeekMessageA(&none, window, neverSent, neverSent, PM_NOREMOVE);
    };
    const LeadByteTest isLeadByte = CodePageLeadByteTest();
    for (const auto& [source, destination] : updateFiles) {
        // Gone at the end of the Windows session, in the events below: the update is made at the next start.
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
