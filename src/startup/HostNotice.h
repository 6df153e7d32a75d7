// The small window that tells the operator that the menu is waiting for the host.
#pragma once

#include "controls/Dialog.h"

#include <string>

namespace obrin {

class HostNotice final : public Dialog {
public:
    /// Shows nothing yet. `hostStartError` is the Windows error code if the host could not be started, or 0.
    HostNotice(HWND menuWindow, std::string stationCaption, DWORD hostStartError);
    ~HostNotice();

    /// Shows the notice two seconds after the construction, or at once if the host could not be started. Call
    /// it repeatedly: it does nothing before that time, and nothing after the notice was shown. Throws
    /// RunTimeError.
    void ShowWhenDue();

private:
    INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void Form_Load();

    HWND menu;
    std::string caption;
    DWORD startError;
    ULONGLONG dueTime; // by GetTickCount64
    bool shown = false;
};

} // namespace obrin
