#include "startup/HostNotice.h"

#include "common/Installation.h"
#include "platform/Failure.h"
#include "platform/Folder.h"
#include "resources/Ids.h"

namespace obrin {

namespace {

constexpr ULONGLONG patience = 2000; // milliseconds, in which most hosts come

} // namespace

HostNotice::HostNotice(HWND menuWindow, const std::string& stationCaption, DWORD refusal)
    : menu(menuWindow)
    , caption(stationCaption)
    , refused(refusal)
    , due(GetTickCount64() + (refusal != 0 ? 0 : patience)) {}

HostNotice::~HostNotice() {
    if (window != nullptr)
        DestroyWindow(window);
}

void HostNotice::ShowWhenDue() {
    if (shown || GetTickCount64() < due)
        return;
    shown = true;
    ShowModeless(menu, IDD_HOST_NOTICE);
}

INT_PTR HostNotice::OnMessage(UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG:
        Form_Load();
        return FALSE; // the keyboard stays where it is
    case WM_COMMAND:
        // The button, Esc and the close box. The menu ends as if it had been closed, and this window with it.
        if (LOWORD(wParam) == IDCANCEL)
            PostMessageA(menu, WM_CLOSE, 0, 0);
        return TRUE;
    case WM_DESTROY:
        window = nullptr;
        return FALSE;
    default:
        return FALSE;
    }
}

void HostNotice::Form_Load() {
    const std::string program = hostProgram;
    SetWindowTextA(Control(IDC_WAITED_FOR),
                   ("The menu opens as soon as " + program + " shows its window " + caption + ".").c_str());
    SetWindowTextA(Control(IDC_FOLDER), CurrentFolder().c_str());
    if (refused != 0)
        SetWindowTextA(Control(IDC_REASON),
                       (program + " could not be started: " + PlatformText(refused, program)).c_str());
    constexpr LPARAM step = 500; // milliseconds; a livelier bar would cost more than the wait itself
    SendMessageA(Control(IDC_PROGRESS), PBM_SETMARQUEE, TRUE, step);
}

} // namespace obrin
