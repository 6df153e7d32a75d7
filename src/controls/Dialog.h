// Joins a dialog of the resources and the object that handles its messages. The dialog follows the DPI of its
// screen and the user's settings.
#pragma once

#include "controls/DialogLayout.h"

#include <optional>

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

    /// What a layout has that the template does not say, such as the height of a text.
    virtual void AdjustLayout(DialogLayout&) const {}

    /// The controls have got the places and the font for `dpi`; what has other ones gets them here. Not
    /// called for a dialog as it was made.
    virtual void OnLayout() {}

    /// Lays the dialog out anew and puts it there.
    void ApplyLayout(UINT newDpi, POINT topLeft);

    /// The size of its window at a DPI, in pixels.
    SIZE OuterSizeAt(UINT someDpi) const { return OuterSize(LayoutAt(someDpi), someDpi); }

    /// Lets the controls of a page, a dialog within this one, follow as well.
    void AddPage(HWND page) { design->AddControlsOf(page); }

    /// One of the dialog's controls or its pages'.
    HWND Control(int id) const { return design->FindControl(id); }

    HWND window = nullptr;
    UINT dpi = USER_DEFAULT_SCREEN_DPI;

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);
    DialogLayout LayoutAt(UINT someDpi) const;
    SIZE OuterSize(const DialogLayout& layout, UINT someDpi) const;

    std::optional<DialogDesign> design;
    UniqueFont font; // none of ours before the first layout
};

} // namespace obrin
