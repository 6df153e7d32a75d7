// The about box. It also starts the system-information tool of Windows.
#pragma once

#include "controls/Dialog.h"
#include "platform/Handle.h"

namespace obrin {

class frmAbout final : public Dialog {
public:
    /// Shows the box modally. Returns when the user has closed it.
    void Show(HWND owner);

private:
    INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnCommand(int id);
    void Form_Load();
    void cmdOK_Click();
    void cmdSysInfo_Click();

    void AdjustLayout(DialogLayout& layout) const override;
    void OnLayout() override;

    HWND picIcon = nullptr;
    HWND lblTitle = nullptr;
    HWND lblVersion = nullptr;
    HWND lblDescription = nullptr;
    HWND lblDisclaimer = nullptr;
    UniqueIcon icon;
    UniqueFont titleFont;
};

} // namespace obrin
