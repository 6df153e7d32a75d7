// Where the controls of a dialog stand at any DPI: computed each time from the dialog units of its template,
// so that a window that comes back from another screen looks as it did.
#pragma once

#include "platform/Handle.h"

#include <vector>

namespace obrin {

/// A dialog at one DPI, in pixels.
struct DialogLayout {
    struct Place {
        HWND control;
        RECT place; ///< in the control's parent
    };

    UniqueFont font; ///< of the dialog
    SIZE inner;      ///< of the dialog, without its frame
    std::vector<Place> places;

    /// Of one of the dialog's own controls.
    RECT& BoundsOf(HWND control);
};

/// What the template of a dialog says.
class DialogDesign {
public:
    /// Reads it from a dialog that has just been made, before anything in it is moved.
    explicit DialogDesign(HWND dialog);

    /// Reads the controls of a dialog within it, which has the same font.
    void AddControlsOf(HWND parent);

    /// The control of this id, those of dialogs within counted; 0 without one. To ask the platform for each
    /// would take longer.
    HWND FindControl(int id) const;

    DialogLayout At(UINT dpi) const;

private:
    SIZE character; // average one of the font as the dialog was made, in pixels
    LOGFONTA font{};
    int points;                              // the font's size
    SIZE inner;                              // in units
    std::vector<DialogLayout::Place> places; // in units
};

} // namespace obrin
