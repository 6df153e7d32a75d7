// Fonts of a DPI, and texts measured in them.
#pragma once

#include "platform/Handle.h"

#include <string>

namespace obrin {

struct FontStyle {
    bool bold = false;
    bool underlined = false;
};

/// A font of the given size in points. A missing face is replaced by what the platform finds closest.
UniqueFont MakeFont(const char* face, int points, UINT dpi, FontStyle style = {});

/// The font of the platform's own messages, which the standard controls use.
UniqueFont MakeMessageFont(UINT dpi);

void SetFont(HWND control, HFONT font);

/// The size in pixels that a label needs for its text in the control's font: as wide as its longest line, or
/// wrapped at `wrapWidth`.
SIZE MeasureText(HWND control, const std::string& text, int wrapWidth = 0);

} // namespace obrin
