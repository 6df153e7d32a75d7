// Fonts and measures that the windows share.
#pragma once

#include <windows.h>

namespace fenn {

/// A length given for a screen of 96 pixels an inch, in pixels of this screen.
int Scaled(int length);

/// The desktop's message font in per cent of its size; lives as long as the process.
HFONT MakeFont(int percent, LONG weight);

/// The desktop's message font as it is.
HFONT TextFont();

} // namespace fenn
