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
    // The dialog manager rounds the average width in the same way.
    return {(extent.cx / 26 + 1) / 2, metrics.tmHeight};
}

// A font's average character is four dialog units wide and eight high.
constexpr SIZE dialogUnitsPerCharacter{4, 8};

// Converts between pixels and dialog units. `from` and `to` are the size of a character in the old and the
// new unit. Position and size are converted separately, as the dialog manager does.
RECT Convert(const RECT& bounds, SIZE from, SIZE to) {
    const int left = MulDiv(bounds.left, to.cx, from.cx);
    const int top = MulDiv(bounds.top, to.cy, from.cy);
    return {left, top, left + MulDiv(bounds.right - bounds.left, to.cx, from.cx),
            top + MulDiv(bounds.bottom - bounds.top, to.cy, from.cy)};
}

} // namespace

RECT& DialogLayout::BoundsOf(HWND control) {
    return std::ranges::find(controls, control, &ControlBounds::control)->bounds;
}

DialogDesign::DialogDesign(HWND dialog) {
    RECT area{0, 0, dialogUnitsPerCharacter.cx, dialogUnitsPerCharacter.cy};
    MapDialogRect(dialog, &area);
    character = {area.right, area.bottom};
    GetObjectA(reinterpret_cast<HFONT>(SendMessageA(dialog, WM_GETFONT, 0, 0)), sizeof font, &font);
    points = MulDiv(-font.lfHeight, pointsPerInch, static_cast<int>(GetDpiForWindow(dialog)));
    GetClientRect(dialog, &area);
    area = Convert(area, character, dialogUnitsPerCharacter);
    inner = {area.right, area.bottom};
    AddControlsOf(dialog);
}

void DialogDesign::AddControlsOf(HWND parent) {
    for (const HWND control : ListDescendants(parent)) {
        if (GetAncestor(control, GA_PARENT) != parent)
            continue; // for example the edit box inside a combo box
        RECT bounds;
        // The height of a combo box includes its open list.
        if (SendMessageA(control, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&bounds)) == 0)
            GetWindowRect(control, &bounds);
        MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&bounds), 2);
        controls.push_back({control, Convert(bounds, character, dialogUnitsPerCharacter)});
    }
}

HWND DialogDesign::FindControl(int id) const {
    const auto found =
        std::ranges::find(controls, id, [](const auto& entry) { return GetDlgCtrlID(entry.control); });
    return found == controls.end() ? nullptr : found->control;
}

DialogLayout DialogDesign::LayoutAt(UINT dpi) const {
    LOGFONTA scaled = font;
    scaled.lfHeight = -MulDiv(points, static_cast<int>(dpi), pointsPerInch);
    scaled.lfWidth = 0;
    DialogLayout layout{.font = UniqueFont(CreateFontIndirectA(&scaled)), .inner = {}, .controls = controls};

    const UniqueDc context(CreateCompatibleDC(nullptr));
    const HGDIOBJ old = SelectObject(context.get(), layout.font.get());
    const SIZE pixels = MeasureCharacter(context.get());
    SelectObject(context.get(), old);

    const RECT area = Convert({0, 0, inner.cx, inner.cy}, dialogUnitsPerCharacter, pixels);
    layout.inner = {area.right, area.bottom};
    for (auto& [control, bounds] : layout.controls)
        bounds = Convert(bounds, dialogUnitsPerCharacter, pixels);
    return layout;
}

} // namespace obrin
