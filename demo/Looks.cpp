#include "Looks.h"

namespace fenn {

int Scaled(int length) {
    static const int pixelsPerInch = [] {
        HDC screen = GetDC(nullptr);
        const int found = GetDeviceCaps(screen, LOGPIXELSY);
        ReleaseDC(nullptr, screen);
        return found;
    }();
    return MulDiv(length, pixelsPerInch, 96);
}

HFONT MakeFont(int percent, LONG weight) {
    NONCLIENTMETRICSA metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, percent, 100);
    metrics.lfMessageFont.lfWeight = weight;
    return CreateFontIndirectA(&metrics.lfMessageFont);
}

HFONT TextFont() {
    static HFONT font = MakeFont(100, FW_NORMAL);
    return font;
}

} // namespace fenn
