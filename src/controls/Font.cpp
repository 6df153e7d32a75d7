#include "controls/Font.h"

namespace obrin {

UniqueFont MakeFont(const Face& face, int points, UINT dpi, FontStyle style) {
    constexpr int pointsPerInch = 72;
    return UniqueFont(CreateFontA(-MulDiv(points, static_cast<int>(dpi), pointsPerInch), 0, 0, 0,
                                  style.bold ? FW_BOLD : FW_NORMAL, FALSE, style.underlined ? TRUE : FALSE,
                                  FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                                  DEFAULT_QUALITY, DWORD{DEFAULT_PITCH} | face.family, face.name));
}

UniqueFont MakeMessageFont(UINT dpi) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi);
    return UniqueFont(CreateFontIndirectW(&metrics.lfMessageFont));
}

void SetFont(HWND control, HFONT font) {
    SendMessageA(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

SIZE MeasureText(HFONT font, const std::string& text, int wrapWidth) {
    const HDC context = GetDC(nullptr);
    const HGDIOBJ old = SelectObject(context, font);
    RECT area{0, 0, wrapWidth, 0};
    DrawTextA(context, text.data(), static_cast<int>(text.size()), &area,
              DT_CALCRECT | DT_EXPANDTABS | DT_NOPREFIX | (wrapWidth > 0 ? DT_WORDBREAK : 0U));
    SelectObject(context, old);
    ReleaseDC(nullptr, context);
    return {area.right, area.bottom};
}

} // namespace obrin
