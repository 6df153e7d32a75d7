#include "platform/Dialog.h"

#include "platform/Failure.h"
#include "resources/Ids.h"

namespace obrin {

INT_PTR Dialog::ShowModal(HWND owner, int resource) {
    const INT_PTR result = DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(resource), owner,
                                           Procedure, reinterpret_cast<LPARAM>(this));
    if (result == -1 && window == nullptr)
        ThrowLastError("Opening a dialog");
    window = nullptr;
    return result;
}

void Dialog::ShowModeless(HWND owner, int resource) {
    const HWND opened = CreateDialogParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(resource), owner,
                                           Procedure, reinterpret_cast<LPARAM>(this));
    if (opened == nullptr)
        ThrowLastError("Opening a dialog");
    ShowWindow(opened, SW_SHOWNOACTIVATE);
}

INT_PTR CALLBACK Dialog::Procedure(HWND dialogWindow, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrA(dialogWindow, DWLP_USER, lParam);
        reinterpret_cast<Dialog*>(lParam)->window = dialogWindow;
        const HICON icon = LoadIconA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDI_OBRIN));
        SendMessageA(dialogWindow, WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(icon));
    }
    auto* dialog = reinterpret_cast<Dialog*>(GetWindowLongPtrA(dialogWindow, DWLP_USER));
    if (dialog == nullptr)
        return FALSE;
    return AtBoundary([=] { return dialog->OnMessage(message, wParam, lParam); });
}

std::string WindowText(HWND window) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

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
