#include "platform/DialogLayout.h"

#include <algorithm>

namespace obrin {

namespace {

constexpr int pointsPerInch = 72;

SIZE UnitsOf(HDC context) {
    constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    SIZE extent{};
    GetTextExtentPoint32A(context, letters.data(), letters.size(), &extent);
    TEXTMETRICA metrics{};
    GetTextMetricsA(context, &metrics);
    // The average width, rounded as the dialog manager does.
    return {(extent.cx / 26 + 1) / 2, metrics.tmHeight};
}

RECT InPixels(const RECT& place, SIZE units) {
    return {MulDiv(place.left, units.cx, 4), MulDiv(place.top, units.cy, 8), MulDiv(place.right, units.cx, 4),
            MulDiv(place.bottom, units.cy, 8)};
}

// Exact, since a unit is larger than a pixel.
RECT InUnits(const RECT& place, SIZE units) {
    return {MulDiv(place.left, 4, units.cx), MulDiv(place.top, 8, units.cy), MulDiv(place.right, 4, units.cx),
            MulDiv(place.bottom, 8, units.cy)};
}

} // namespace

RECT& DialogLayout::PlaceOf(HWND control) {
    return std::ranges::find(places, control, &Place::control)->place;
}

DialogDesign::DialogDesign(HWND dialog) {
    RECT area{0, 0, 4, 8};
    MapDialogRect(dialog, &area);
    units = {area.right, area.bottom};
    GetObjectA(reinterpret_cast<HFONT>(SendMessageA(dialog, WM_GETFONT, 0, 0)), sizeof font, &font);
    points = MulDiv(-font.lfHeight, pointsPerInch, static_cast<int>(GetDpiForWindow(dialog)));
    GetClientRect(dialog, &area);
    area = InUnits(area, units);
    inner = {area.right, area.bottom};
    AddControlsOf(dialog);
}

void DialogDesign::AddControlsOf(HWND parent) {
    for (HWND control = GetWindow(parent, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT)) {
        RECT place;
        // A combo box is as high as it is with its list.
        if (SendMessageA(control, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&place)) == 0)
            GetWindowRect(control, &place);
        MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
        places.push_back({control, InUnits(place, units)});
    }
}

DialogLayout DialogDesign::At(UINT dpi) const {
    LOGFONTA scaled = font;
    scaled.lfHeight = -MulDiv(points, static_cast<int>(dpi), pointsPerInch);
    scaled.lfWidth = 0;
    DialogLayout layout{.font = UniqueFont(CreateFontIndirectA(&scaled)), .inner = {}, .places = places};

    const UniqueDc context(CreateCompatibleDC(nullptr));
    const HGDIOBJ old = SelectObject(context.get(), layout.font.get());
    const SIZE pixels = UnitsOf(context.get());
    SelectObject(context.get(), old);

    const RECT area = InPixels({0, 0, inner.cx, inner.cy}, pixels);
    layout.inner = {area.right, area.bottom};
    for (auto& [control, place] : layout.places)
        place = InPixels(place, pixels);
    return layout;
}

} // namespace obrin
