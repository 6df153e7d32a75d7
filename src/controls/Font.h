// Fonts of a DPI, and texts measured in them.
#pragma once

#include "platform/Handle.h"

#include <string>

namespace obrin {

/// A family of fonts and what stands in for it where it is missing: a script, a serif face or one without.
struct Face {
    const char* name;
    BYTE family;
};
constexpr Face comicSans{"Comic Sans MS", FF_SCRIPT};
constexpr Face georgia{"Georgia", FF_ROMAN};
constexpr Face msSansSerif{"MS Sans Serif", FF_SWISS};
constexpr Face shellDialog{"MS Shell Dlg", FF_SWISS};

struct FontStyle {
    bool bold = false;
    bool underlined = false;
};

/// A font of the given size in points, smoothed as the user has chosen.
UniqueFont MakeFont(const Face& face, int points, UINT dpi, FontStyle style = {});

/// The font of the platform's own messages, which the standard controls use.
UniqueFont MakeMessageFont(UINT dpi);

void SetFont(HWND control, HFONT font);

/// The size in pixels that a label needs for its text, with SS_NOPREFIX in a font or as this one is: as wide
/// as its longest line, or wrapped at `wrapWidth`.
SIZE MeasureText(HFONT font, const std::string& text, int wrapWidth = 0);
SIZE MeasureText(HWND label, const std::string& text, int wrapWidth = 0);

} // namespace obrin
