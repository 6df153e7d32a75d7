// The small window that tells the operator that the menu is waiting for the host.
#pragma once

#include "controls/Dialog.h"

#include <string>

namespace obrin {

class HostNotice final : public Dialog {
public:
    /// Shows nothing yet. `hostStartError` is the Windows error code if the host could not be started, or 0.
    HostNotice(HWND menuWindow, std::string stationCaption, DWORD hostStartError);
    HostNotice(const HostNotice&) = delete;
    HostNotice& operator=(const HostNotice&) = delete;
    ~HostNotice();

    /// Shows the notice if two seconds are over or the host could not be started. Shows it only once, so it
    /// can be called again and again. Throws RunTimeError.
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
