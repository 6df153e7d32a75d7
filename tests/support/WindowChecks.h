// What holds for every window: it comes back from a screen of another DPI as it was, and a screen reader is
// told what its controls are.
#pragma once

#include "platform/WindowsApi.h"

#include <gtest/gtest.h>
#include <oleacc.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace obrin::test {

/// Face and height in pixels of a window's font, from the letters' top to their bottom when it is below zero,
/// and what is bold, italic and underlined: "Georgia-20u".
inline std::string FontOf(HWND window) {
    LOGFONTA shape{};
    GetObjectA(reinterpret_cast<HFONT>(SendMessageA(window, WM_GETFONT, 0, 0)), sizeof shape, &shape);
    return shape.lfFaceName + std::to_string(shape.lfHeight) + (shape.lfWeight == FW_BOLD ? "b" : "") +
           (shape.lfItalic != 0 ? "i" : "") + (shape.lfUnderline != 0 ? "u" : "");
}

inline BOOL CALLBACK AddPlace(HWND control, LPARAM places) {
    const LRESULT font = SendMessageA(control, WM_GETFONT, 0, 0);
    EXPECT_TRUE(font == 0 || GetObjectType(reinterpret_cast<HGDIOBJ>(font)) == OBJ_FONT)
        << "freed while in use";
    RECT place;
    if (SendMessageA(control, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&place)) == 0)
        GetWindowRect(control, &place); // but for combo boxes, which have a list
    MapWindowPoints(nullptr, GetAncestor(control, GA_PARENT), reinterpret_cast<POINT*>(&place), 2);
    reinterpret_cast<std::vector<RECT>*>(places)->push_back(place);
    LOGFONTA shape{};
    GetObjectA(reinterpret_cast<HFONT>(font), sizeof shape, &shape);
    if (GetWindow(control, GW_CHILD) == nullptr) // a dialog itself keeps the font that it was made with
        reinterpret_cast<std::vector<RECT>*>(places)->push_back({0, 0, std::abs(shape.lfHeight), 0});
    return TRUE;
}

// Of the window and all that is in it, with the heights of their fonts.
inline std::vector<RECT> Places(HWND window) {
    std::vector<RECT> places;
    AddPlace(window, reinterpret_cast<LPARAM>(&places));
    EnumChildWindows(window, AddPlace, reinterpret_cast<LPARAM>(&places));
    return places;
}

inline void IsTheSameAfterOtherScreens(HWND window) {
    const std::vector<RECT> first = Places(window);
    for (const UINT dpi : {144U, 192U, 96U}) {
        // As the platform would have it, unless the window knows better.
        SIZE scaled{MulDiv(first[0].right - first[0].left, static_cast<int>(dpi), 96),
                    MulDiv(first[0].bottom - first[0].top, static_cast<int>(dpi), 96)};
        if (SIZE own{}; SendMessageA(window, WM_GETDPISCALEDSIZE, dpi, reinterpret_cast<LPARAM>(&own)) != 0)
            scaled = own;
        RECT suggested{first[0].left, first[0].top, first[0].left + scaled.cx, first[0].top + scaled.cy};
        SendMessageA(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&suggested));
        SendMessageA(window, WM_SETTINGCHANGE, 0, 0);
        const std::vector<RECT> places = Places(window);
        ASSERT_EQ(places.size(), first.size());
        EXPECT_TRUE(EqualRect(&places.front(), &suggested)) << "the size that was asked for";
        for (std::size_t i = 0; i < first.size(); ++i) {
            // Fonts do not grow evenly.
            const double factor = dpi / 96.0, slack = dpi == 96 ? 1 : 0.15 * factor * first[i].right + 4;
            EXPECT_NEAR(places[i].left, i == 0 ? first[i].left : factor * first[i].left, slack)
                << dpi << " " << i;
            const LONG width = first[i].right - first[i].left;
            EXPECT_NEAR(places[i].right - places[i].left, factor * width,
                        std::min(slack, 0.15 * factor * width + 4))
                << dpi << " " << i;
            if (dpi == 96) {
                EXPECT_NEAR(places[i].top, first[i].top, 1) << i;
                EXPECT_NEAR(places[i].bottom, first[i].bottom, 1) << i;
            }
        }
    }
}

// Whether the platform lets a program say what its controls are; Wine does not.
inline bool PlatformTakesRoles(HWND control) {
    void* created = nullptr;
    if (FAILED(CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                                &created)))
        return false;
    auto* services = static_cast<IAccPropServices*>(created);
    VARIANT role{};
    role.vt = VT_I4;
    role.lVal = ROLE_SYSTEM_LINK;
    const HRESULT result =
        services->SetHwndProp(control, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, PROPID_ACC_ROLE, role);
    services->Release();
    return SUCCEEDED(result);
}

// Name and role, as a screen reader asks for them.
inline std::pair<std::string, LONG> Announced(HWND control) {
    IAccessible* object = nullptr;
    if (AccessibleObjectFromWindow(control, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                   reinterpret_cast<void**>(&object)) != S_OK)
        return {"nothing", 0};
    VARIANT self{}, role{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    BSTR name = nullptr;
    object->get_accName(self, &name);
    object->get_accRole(self, &role);
    object->Release();
    const std::string text(name, name + SysStringLen(name)); // plain letters
    SysFreeString(name);
    return {text, role.lVal};
}

} // namespace obrin::test
