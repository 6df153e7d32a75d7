// Joins a dialog of the resources and the object that handles its messages.
#pragma once

#include "platform/WindowsApi.h"

#include <string>

namespace obrin {

class Dialog {
public:
    Dialog() = default;
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    /// Shows the dialog and returns once it is closed, with what EndDialog was given. It can also end
    /// because its owner was destroyed: callers check. Throws RunTimeError when it cannot be opened.
    INT_PTR ShowModal(HWND owner, int resource);

    /// Opens the dialog beside whatever else goes on, shown without taking the keyboard; it closes with its
    /// owner. Throws RunTimeError.
    void ShowModeless(HWND owner, int resource);

protected:
    ~Dialog() = default;

    /// Returns TRUE for a message that needs nothing more, as a dialog procedure does.
    virtual INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;

    HWND Control(int id) const { return GetDlgItem(window, id); }

    HWND window = nullptr;

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
};

/// The text of a window or control.
std::string WindowText(HWND window);

/// Asks for one line of text. Returns it, or an empty text when the box was cancelled or closed.
std::string InputBox(HWND owner, const std::string& prompt, const char* title);

} // namespace obrin
