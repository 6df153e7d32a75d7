// Computes the layout of a dialog at any DPI. It always starts from the dialog units of the template: scaling
// the current positions again and again would add up rounding errors.
#pragma once

#include "platform/Handle.h"

#include <vector>

namespace obrin {

/// The layout of a dialog at one DPI, in pixels.
struct DialogLayout {
    struct ControlBounds {
        HWND control;
        RECT bounds; ///< relative to the parent of the control
    };

    UniqueFont font;
    SIZE inner; ///< size without the frame
    std::vector<ControlBounds> controls;

    /// Returns the bounds of a control, which must be part of the layout.
    RECT& BoundsOf(HWND control);
};

/// The layout of a dialog in dialog units, as its template defines it.
class DialogDesign {
public:
    /// Reads the design from a new dialog, before anything in it is moved.
    explicit DialogDesign(HWND dialog);

    /// Adds the controls of a child dialog, which must use the same font.
    void AddControlsOf(HWND parent);

    /// Returns the control with this id in the dialog or its child dialogs, or null.
    HWND FindControl(int id) const;

    DialogLayout LayoutAt(UINT dpi) const;

private:
    SIZE character; // average character of the font when the dialog was created, in pixels
    LOGFONTA font{};
    int points;                                        // font size
    SIZE inner;                                        // in dialog units
    std::vector<DialogLayout::ControlBounds> controls; // in dialog units
};

} // namespace obrin
