// The base class of our dialogs. It connects a dialog resource with the object that handles its messages, and
// keeps the layout right when the DPI of the screen or the user's settings change.
#pragma once

#include "controls/DialogLayout.h"

#include <optional>

namespace obrin {

class Dialog {
public:
    Dialog() = default;
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    /// Shows the dialog modally and returns the value passed to EndDialog. The dialog also ends when its
    /// owner is destroyed, so callers must check that the owner still exists. Throws RunTimeError.
    INT_PTR ShowModal(HWND owner, int resource);

    /// Shows the dialog without the focus and returns at once. Its owner closes it. Throws RunTimeError.
    void ShowModeless(HWND owner, int resource);

protected:
    ~Dialog() = default;

    /// Handles a message. Returns what a dialog procedure returns: TRUE if the message is done.
    virtual INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;

    /// Changes the layout that was computed from the template, for example to make room for a longer text.
    virtual void AdjustLayout(DialogLayout&) const {}

    /// Sets everything that depends on `dpi` but is not in the layout, for example special fonts. Called by
    /// ApplyLayout, not when the dialog is created.
    virtual void OnLayout() {}

    /// Lays out the dialog for a DPI and moves it to `topLeft` (screen coordinates).
    void ApplyLayout(UINT newDpi, POINT topLeft);

    /// Returns the size of the dialog's window at a DPI, in pixels.
    SIZE OuterSizeAt(UINT anyDpi) const { return OuterSize(LayoutAt(anyDpi), anyDpi); }

    /// Adds the controls of a page to the layout. A page is a child dialog.
    void AddPage(HWND page) { design->AddControlsOf(page); }

    /// Returns a control of the dialog or its pages.
    HWND Control(int id) const { return design->FindControl(id); }

    HWND window = nullptr;
    UINT dpi = USER_DEFAULT_SCREEN_DPI;

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);
    DialogLayout LayoutAt(UINT anyDpi) const;
    SIZE OuterSize(const DialogLayout& layout, UINT anyDpi) const;

    std::optional<DialogDesign> design;
    UniqueFont font; // null until ApplyLayout; the dialog manager owns the first font
};

} // namespace obrin
