#include "startup/HostNotice.h"

#include "common/Installation.h"
#include "platform/Failure.h"
#include "platform/Folder.h"
#include "resources/Ids.h"

#include <utility>

namespace obrin {

namespace {

constexpr ULONGLONG delay = 2000; // milliseconds; most hosts need less

} // namespace

HostNotice::HostNotice(HWND menuWindow, std::string stationCaption, DWORD hostStartError)
    : menu(menuWindow)
    , caption(std::move(stationCaption))
    , startError(hostStartError)
    , dueTime(GetTickCount64() + (startError != 0 ? 0 : delay)) {}

HostNotice::~HostNotice() {
    if (window != nullptr)
        DestroyWindow(window);
}

void HostNotice::ShowWhenDue() {
    if (shown || GetTickCount64() < dueTime)
        return;
    shown = true;
    ShowModeless(menu, IDD_HOST_NOTICE);
}

INT_PTR HostNotice::OnMessage(UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG:
        Form_Load();
        return FALSE; // leaves the focus where it is
    case WM_COMMAND:
        // From the button, Esc or the close box. Closing the menu also closes this window.
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
    if (startError != 0)
        SetWindowTextA(Control(IDC_REASON),
                       (program + " could not be started: " + PlatformText(startError, program)).c_str());
    constexpr LPARAM step = 500; // milliseconds; a faster bar would use more processor time than the wait
    SendMessageA(Control(IDC_PROGRESS), PBM_SETMARQUEE, TRUE, step);
}

} // namespace obrin
