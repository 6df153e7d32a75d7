// The small window that tells the operator what is waited for when the host does not come at once.
#pragma once

#include "controls/Dialog.h"

#include <string>

namespace obrin {

class HostNotice final : public Dialog {
public:
    /// Nothing is shown yet. `refusal` is the platform's code when the host could not be started, or 0.
    HostNotice(HWND menuWindow, const std::string& stationCaption, DWORD refusal);
    HostNotice(const HostNotice&) = delete;
    HostNotice& operator=(const HostNotice&) = delete;
    ~HostNotice();

    /// Shows the notice once, after two seconds of waiting or, when the start was refused, at once. Throws
    /// RunTimeError.
    void ShowWhenDue();

private:
    INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void Form_Load();

    HWND menu;
    std::string caption;
    DWORD refused;
    ULONGLONG due; // milliseconds of GetTickCount64
    bool shown = false;
};

} // namespace obrin
