// Creates fonts and measures texts.
#pragma once

#include "platform/Handle.h"

#include <string>

namespace obrin {

/// A typeface. If it is not installed, Windows chooses another one of the same family: FF_SCRIPT
/// (handwriting), FF_ROMAN (with serifs) or FF_SWISS (without serifs).
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

/// Creates a font; its size is in points.
UniqueFont MakeFont(const Face& face, int points, UINT dpi, FontStyle style = {});

/// Creates the font that Windows uses in message boxes.
UniqueFont MakeMessageFont(UINT dpi);

void SetFont(HWND control, HFONT font);

/// Returns the size in pixels that a label needs for a text. Wraps the text at `wrapWidth` unless that is 0.
/// "&" is an ordinary character.
SIZE MeasureText(HFONT font, const std::string& text, int wrapWidth = 0);

} // namespace obrin
