// Fonts and lengths that the windows share.
#pragma once

#include <windows.h>

namespace fenn {

/// Converts a length in pixels at 96 DPI to pixels of this screen.
int Scaled(int length);

/// Creates the message font of Windows with this percentage of its size and this weight. Nobody deletes it.
HFONT MakeFont(int percent, LONG weight);

/// Returns the message font of Windows.
HFONT TextFont();

} // namespace fenn
