// The update window: copies the executables to the workstation and shows their names.
#pragma once

#include "controls/Dialog.h"
#include "platform/Handle.h"

namespace obrin {

class frmUpdate final : public Dialog {
public:
    /// Shows the window modally. Returns when the user has closed it and all files are copied.
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
    HWND Label2 = nullptr;   // explanation
    HWND Command1 = nullptr; // "O&kay"
    UniqueFont labelFont;
    bool shown = false;
    int pendingCopies = 0; // resize notifications whose copy sequence has not ended
    bool closing = false;  // the user has asked to close the window
};

} // namespace obrin
