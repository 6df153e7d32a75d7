#include "controls/DialogLayout.h"

#include "controls/Window.h"

#include <algorithm>

namespace obrin {

namespace {

constexpr int pointsPerInch = 72;

SIZE MeasureCharacter(HDC context) {
    constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    SIZE extent{};
    GetTextExtentPoint32A(context, letters.data(), letters.size(), &extent);
    TEXTMETRICA metrics{};
    GetTextMetricsA(context, &metrics);
    // The average width, rounded as the dialog manager does.
    return {(extent.cx / 26 + 1) / 2, metrics.tmHeight};
}

// A font's average character is four dialog units wide and eight high.
constexpr SIZE unitsOfCharacter{4, 8};

// From one measure of a character to another: place and size each for itself, as the dialog manager does.
// From pixels to units this is exact, since a unit is larger than a pixel.
RECT Convert(const RECT& place, SIZE from, SIZE to) {
    const int left = MulDiv(place.left, to.cx, from.cx);
    const int top = MulDiv(place.top, to.cy, from.cy);
    return {left, top, left + MulDiv(place.right - place.left, to.cx, from.cx),
            top + MulDiv(place.bottom - place.top, to.cy, from.cy)};
}

} // namespace

RECT& DialogLayout::BoundsOf(HWND control) {
    return std::ranges::find(places, control, &Place::control)->place;
}

DialogDesign::DialogDesign(HWND dialog) {
    RECT area{0, 0, unitsOfCharacter.cx, unitsOfCharacter.cy};
    MapDialogRect(dialog, &area);
    character = {area.right, area.bottom};
    GetObjectA(reinterpret_cast<HFONT>(SendMessageA(dialog, WM_GETFONT, 0, 0)), sizeof font, &font);
    points = MulDiv(-font.lfHeight, pointsPerInch, static_cast<int>(GetDpiForWindow(dialog)));
    GetClientRect(dialog, &area);
    area = Convert(area, character, unitsOfCharacter);
    inner = {area.right, area.bottom};
    AddControlsOf(dialog);
}

void DialogDesign::AddControlsOf(HWND parent) {
    for (const HWND control : ListDescendants(parent)) {
        if (GetAncestor(control, GA_PARENT) != parent)
            continue; // a part of a control
        RECT place;
        // A combo box is as high as it is with its list.
        if (SendMessageA(control, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&place)) == 0)
            GetWindowRect(control, &place);
        MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
        places.push_back({control, Convert(place, character, unitsOfCharacter)});
    }
}

HWND DialogDesign::FindControl(int id) const {
    const auto found =
        std::ranges::find(places, id, [](const auto& place) { return GetDlgCtrlID(place.control); });
    return found == places.end() ? nullptr : found->control;
}

DialogLayout DialogDesign::At(UINT dpi) const {
    LOGFONTA scaled = font;
    scaled.lfHeight = -MulDiv(points, static_cast<int>(dpi), pointsPerInch);
    scaled.lfWidth = 0;
    DialogLayout layout{.font = UniqueFont(CreateFontIndirectA(&scaled)), .inner = {}, .places = places};

    const UniqueDc context(CreateCompatibleDC(nullptr));
    const HGDIOBJ old = SelectObject(context.get(), layout.font.get());
    const SIZE pixels = MeasureCharacter(context.get());
    SelectObject(context.get(), old);

    const RECT area = Convert({0, 0, inner.cx, inner.cy}, unitsOfCharacter, pixels);
    layout.inner = {area.right, area.bottom};
    for (auto& [control, place] : layout.places)
        place = Convert(place, unitsOfCharacter, pixels);
    return layout;
}

} // namespace obrin
