// The about box: which version is running, who made it, and a way to the system-information tool.
#pragma once

#include "controls/Dialog.h"
#include "platform/Handle.h"

namespace obrin {

class frmAbout final : public Dialog {
public:
    /// Shows the box over the menu window, modally; returns once the user has closed it.
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
