// What a person sees of a window and its controls.
#pragma once

#include "controls/Window.h"
#include "controls/WindowText.h"

#include <array>
#include <cstdlib>
#include <string>
#include <vector>

namespace obrin::test {

constexpr const char* dialogClass = "#32770";

inline bool HasClass(HWND window, const char* name) {
    std::array<char, 40> own{};
    GetClassNameA(window, own.data(), own.size());
    return lstrcmpiA(own.data(), name) == 0;
}

inline bool HasStyle(HWND window, DWORD style) {
    return (GetWindowStyle(window) & style) == style;
}

/// The window's place in its parent, in pixels. A top-level window's place on the screen.
inline RECT PlaceOf(HWND window) {
    RECT place;
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, GetAncestor(window, GA_PARENT), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

inline SIZE SizeOf(const RECT& place) {
    return {place.right - place.left, place.bottom - place.top};
}

/// The window's font. Its height is 0 if the font has been deleted.
inline LOGFONTA FontShapeOf(HWND window) {
    LOGFONTA shape{};
    GetObjectA(reinterpret_cast<HFONT>(SendMessageA(window, WM_GETFONT, 0, 0)), sizeof shape, &shape);
    return shape;
}

/// The face and height of the window's font in pixels, then "b" for bold and "u" for underlined:
/// "Georgia-20u". A negative height does not count the font's internal leading.
inline std::string FontOf(HWND window) {
    const LOGFONTA shape = FontShapeOf(window);
    return shape.lfFaceName + std::to_string(shape.lfHeight) + (shape.lfWeight == FW_BOLD ? "b" : "") +
           (shape.lfUnderline != 0 ? "u" : "");
}

/// The size in pixels of a text in the window's font, broken into lines of `width` pixels. `format` adds
/// flags of DrawText (DT_...).
inline SIZE TextSize(HWND window, const std::string& text, LONG width, UINT format = 0) {
    const HDC context = GetDC(window);
    const HGDIOBJ old =
        SelectObject(context, reinterpret_cast<HFONT>(SendMessageA(window, WM_GETFONT, 0, 0)));
    RECT area{0, 0, width, 0};
    DrawTextA(context, text.c_str(), -1, &area, DT_CALCRECT | DT_WORDBREAK | format);
    SelectObject(context, old);
    ReleaseDC(window, context);
    return SizeOf(area);
}

/// Names a control in the message of a failed expectation.
inline std::string Name(HWND control) {
    return "control " + std::to_string(GetDlgCtrlID(control)) + " \"" + WindowText(control) + '"';
}

inline bool IsGroupBox(HWND control) {
    return HasClass(control, WC_BUTTONA) && (GetWindowStyle(control) & BS_TYPEMASK) == BS_GROUPBOX;
}

inline bool IsLabel(HWND control) {
    return HasClass(control, WC_STATICA) && (GetWindowStyle(control) & SS_TYPEMASK) <= SS_RIGHT;
}

/// The controls that a person sees. Leaves out the pages behind the front page, which are visible but
/// disabled, and the box inside a combo box, which is a part of it.
inline std::vector<HWND> ShownControls(HWND window) {
    std::vector<HWND> controls = ListDescendants(window);
    std::erase_if(controls, [](HWND control) {
        const HWND parent = GetParent(control);
        const bool isPageBehind = HasClass(control, dialogClass) && !IsWindowEnabled(control);
        return !IsWindowVisible(control) || isPageBehind || !IsWindowEnabled(parent) ||
               HasClass(parent, WC_COMBOBOXA);
    });
    return controls;
}

/// Finds a control by its number, also in a page or a frame of the window.
inline HWND ControlOf(HWND window, int id) {
    for (const HWND control : ListDescendants(window)) {
        if (GetDlgCtrlID(control) == id)
            return control;
    }
    return nullptr;
}

} // namespace obrin::test
