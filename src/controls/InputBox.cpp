#include "controls/InputBox.h"

#include "controls/Dialog.h"
#include "controls/WindowText.h"
#include "resources/Ids.h"

namespace obrin {

namespace {

class InputDialog final : public Dialog {
public:
    InputDialog(const std::string& question, const char* caption)
        : prompt(question)
        , title(caption) {}

    std::string answer;

private:
    INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM) override {
        if (message == WM_INITDIALOG) {
            SetWindowTextA(window, title);
            SetWindowTextA(Control(IDC_PROMPT), prompt.c_str());
            return TRUE;
        }
        if (message != WM_COMMAND || (LOWORD(wParam) != IDOK && LOWORD(wParam) != IDCANCEL))
            return FALSE;
        if (LOWORD(wParam) == IDOK)
            answer = WindowText(Control(IDC_ANSWER));
        EndDialog(window, LOWORD(wParam));
        return TRUE;
    }

    const std::string& prompt;
    const char* title;
};

} // namespace

std::string InputBox(HWND owner, const std::string& prompt, const char* title) {
    InputDialog dialog(prompt, title);
    dialog.ShowModal(owner, IDD_INPUT_BOX);
    return dialog.answer;
}

} // namespace obrin
