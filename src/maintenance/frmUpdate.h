// The update window: copies the shared executables to the workstation while it shows their names.
#pragma once

#include "controls/Dialog.h"
#include "platform/Handle.h"

namespace obrin {

class frmUpdate final : public Dialog {
public:
    /// Shows the window beside `owner`, the menu window, modally; returns once the user has closed it.
    void Show(HWND owner);

private:
    INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void Form_Load();
    void Form_Resize();
    void OnLayout() override;
    void PlaceLabel();
    void Command1_Click();
    void CopyFiles();

    HWND Label1 = nullptr;   // progress
    HWND Label2 = nullptr;   // what is going on
    HWND Command1 = nullptr; // "O&kay"
    UniqueFont labelFont;
    bool shown = false;
    int copiesDue = 0;    // resize notifications whose copy sequence has not ended
    bool closing = false; // the user has closed the window while files were copied
};

} // namespace obrin
