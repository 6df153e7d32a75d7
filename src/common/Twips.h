// Converts between pixels and twips. The layout of the menu window is in twips.
#pragma once

#include <cmath>

namespace obrin {

constexpr double twipsPerInch = 1440;

inline int ToPixels(double twips, unsigned dpi) {
    return static_cast<int>(std::lround(twips * dpi / twipsPerInch));
}

constexpr double ToTwips(int pixels, unsigned dpi) {
    return pixels * twipsPerInch / dpi;
}

} // namespace obrin
