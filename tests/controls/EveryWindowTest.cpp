// What holds for every window, at several DPI: controls lie inside their parents and apart from each other,
// texts are shown whole, and the Tab key reaches every control that takes keys.

#include "controls/WindowTest.h"

#include <algorithm>

namespace obrin::test {
namespace {

int AtDpi(LONG pixels, UINT dpi, UINT ofDpi = 96) {
    return MulDiv(pixels, static_cast<int>(dpi), static_cast<int>(ofDpi));
}

// Moves a window to a screen of another DPI as the platform does: asks the window for its size there, then
// suggests a place. A changed user setting must not move the window away again.
void MoveToScreen(HWND window, UINT dpi, SIZE size) {
    if (SIZE own{}; SendMessageA(window, WM_GETDPISCALEDSIZE, dpi, reinterpret_cast<LPARAM>(&own)) != 0)
        size = own;
    const RECT place = PlaceOf(window);
    RECT suggested{place.left, place.top, place.left + size.cx, place.top + size.cy};
    const auto move = [&] {
        SendMessageA(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&suggested));
        SendMessageA(window, WM_SETTINGCHANGE, 0, 0);
        const RECT taken = PlaceOf(window);
        return EqualRect(&taken, &suggested) != FALSE;
    };
    // Tried three times, because on a busy machine Wine sometimes gives a window its earlier size back.
    EXPECT_TRUE(move() || move() || move()) << "the window must take the suggested place";
}

class EveryWindow : public WindowTest, public testing::WithParamInterface<OpenedWindow> {
protected:
    void WhileOpened(const WindowAction& act) { (this->*GetParam().whileOpen)(act); }

    /// Opens the window, moves it to screens of several DPI, one after the other, and checks it there.
    void OnEveryScreen(const std::function<void(HWND, UINT)>& check) {
        WhileOpened([&](HWND window) {
            const SIZE size = SizeOf(PlaceOf(window));
            const UINT from = GetDpiForWindow(window);
            for (const UINT dpi : {96U, 144U, 192U, 96U}) {
                SCOPED_TRACE(std::to_string(dpi) + " DPI");
                MoveToScreen(window, dpi, {AtDpi(size.cx, dpi, from), AtDpi(size.cy, dpi, from)});
                check(window, dpi);
            }
        });
    }
};

INSTANTIATE_TEST_SUITE_P(, EveryWindow, testing::ValuesIn(allWindows),
                         [](const auto& window) { return window.param.name; });

// --- Layout ---

bool Contains(const RECT& outer, const RECT& inner) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

TEST_P(EveryWindow, KeepsControlsInsideTheirParent) {
    OnEveryScreen([](HWND window, UINT) {
        for (const HWND control : ShownControls(window)) {
            const HWND parent = GetParent(control);
            RECT inside;
            GetClientRect(parent, &inside);
            if (IsGroupBox(parent)) // below its caption
                inside.top += TextSize(parent, WindowText(parent), inside.right).cy;
            EXPECT_TRUE(Contains(inside, PlaceOf(control))) << Name(control);
        }
    });
}

bool Overlap(HWND one, HWND other) {
    RECT place, otherPlace, common;
    GetWindowRect(one, &place);
    GetWindowRect(other, &otherPlace);
    IntersectRect(&common, &place, &otherPlace);
    // Windows converts the place and the size of a control to pixels separately: neighbours may share a
    // pixel.
    return SizeOf(common).cx > 1 && SizeOf(common).cy > 1;
}

TEST_P(EveryWindow, KeepsControlsApart) {
    OnEveryScreen([](HWND window, UINT) {
        std::vector<HWND> controls = ShownControls(window);
        std::erase_if(controls, [](HWND control) { // containers of other controls
            return IsGroupBox(control) || HasClass(control, WC_TABCONTROLA) || HasClass(control, dialogClass);
        });
        for (auto one = controls.begin(); one != controls.end(); ++one) {
            for (auto other = controls.begin(); other != one; ++other)
                EXPECT_FALSE(Overlap(*one, *other)) << Name(*one) << " and " << Name(*other);
        }
    });
}

// The place of the last of the three tabs in their tab strip.
RECT LastTab(HWND tabStrip) {
    RECT place{};
    SendMessageA(tabStrip, TCM_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&place));
    return place;
}

// The size that a control needs for its text. Zeros for a control that shows no fixed text.
SIZE NeededSize(HWND control, LONG width) {
    const std::string text = WindowText(control);
    if (IsLabel(control) && !HasStyle(control, SS_PATHELLIPSIS)) // unless it shortens a long path
        return TextSize(control, text, width, HasStyle(control, SS_NOPREFIX) ? DT_NOPREFIX : 0);
    if (HasClass(control, WC_BUTTONA)) // the width of an n stands for each border
        return TextSize(control, "n" + text + "n", width, DT_SINGLELINE);
    if (HasClass(control, WC_TABCONTROLA))
        return {LastTab(control).right, 0};
    return {};
}

TEST_P(EveryWindow, ShowsItsTextsWhole) {
    OnEveryScreen([](HWND window, UINT) {
        for (const HWND control : ShownControls(window)) {
            const SIZE room = SizeOf(PlaceOf(control)), needed = NeededSize(control, room.cx);
            EXPECT_LE(needed.cx, room.cx) << Name(control);
            EXPECT_LE(needed.cy, room.cy) << Name(control);
        }
    });
}

// --- Keyboard ---

// The controls that the Tab key goes to, in its order.
std::vector<HWND> TabStops(HWND window) {
    std::vector<HWND> stops;
    for (HWND stop = GetNextDlgTabItem(window, nullptr, FALSE); std::ranges::find(stops, stop) == stops.end();
         stop = GetNextDlgTabItem(window, stop, FALSE))
        stops.push_back(stop);
    return stops;
}

// Whether the user can operate this control with the keyboard. A label that can be clicked is a link.
bool TakesKeys(HWND control) {
    const auto isOneOf = [=](auto... names) { return (HasClass(control, names) || ...); };
    return isOneOf(WC_EDITA, WC_COMBOBOXA, TRACKBAR_CLASSA, WC_TREEVIEWA, WC_TABCONTROLA) ||
           (HasClass(control, WC_BUTTONA) && !IsGroupBox(control)) ||
           (IsLabel(control) && HasStyle(control, SS_NOTIFY));
}

TEST_P(EveryWindow, TabKeyReachesTheControlsThatTakeKeys) {
    WhileOpened([](HWND window) {
        std::vector<HWND> stops = TabStops(window), controls = ShownControls(window);
        std::erase_if(controls, [](HWND control) { return !TakesKeys(control); });
        std::ranges::sort(stops);
        std::ranges::sort(controls);
        EXPECT_EQ(stops, controls);
    });
}

// --- Changes of screen and settings ---

struct Look {
    HWND control;
    RECT place;
    LONG fontHeight; // 0 for a page, which shows no text itself
};

std::vector<Look> LooksOf(HWND window) {
    std::vector<Look> looks;
    for (const HWND control : ShownControls(window)) {
        RECT place; // for a combo box with its list, if the platform says how large that is
        if (SendMessageA(control, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&place)) != 0)
            MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&place), 2);
        else
            place = PlaceOf(control);
        const LONG fontHeight = std::abs(FontShapeOf(control).lfHeight);
        looks.push_back({control, place, HasClass(control, dialogClass) ? 0 : fontHeight});
    }
    return looks;
}

TEST_P(EveryWindow, GrowsWithTheDpiAndComesBackAsItWas) {
    std::vector<Look> first;
    OnEveryScreen([&](HWND window, UINT dpi) {
        const std::vector<Look> now = LooksOf(window);
        first = first.empty() ? now : first;
        // Fonts do not grow evenly with the DPI, and dialogs are laid out in units of their font.
        const double factor = dpi / 96.0, uneven = dpi == 96 ? 0 : 0.15, rounding = dpi == 96 ? 1 : 3;
        for (std::size_t i = 0; i < now.size(); ++i) {
            SCOPED_TRACE(Name(now[i].control));
            const RECT &place = now[i].place, &was = first[i].place;
            EXPECT_NEAR(now[i].fontHeight / factor, first[i].fontHeight, dpi == 96 ? 0 : 1);
            EXPECT_NEAR(place.left / factor, was.left, uneven * was.left + rounding);
            EXPECT_NEAR(place.right / factor, was.right, uneven * was.right + rounding);
            EXPECT_NEAR(place.bottom / factor, was.bottom, uneven * was.bottom + rounding);
        }
    });
}

TEST_P(EveryWindow, IsRepaintedWhenColorsThemeOrSettingsChange) {
    WhileOpened([](HWND window) {
        for (const int change : {WM_SETTINGCHANGE, WM_THEMECHANGED, WM_SYSCOLORCHANGE}) {
            RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
            SendMessageA(window, static_cast<UINT>(change), 0, 0);
            for (const HWND control : ShownControls(window))
                EXPECT_TRUE(GetUpdateRect(control, nullptr, FALSE))
                    << "after message " << change << ": " << Name(control);
        }
    });
}

TEST_F(WindowTest, MenuTakesTheUsersNewMessageFont) {
    NONCLIENTMETRICSA before{};
    before.cbSize = sizeof before;
    SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof before, &before, 0);
    NONCLIENTMETRICSA changed = before;
    changed.lfMessageFont.lfHeight = -AtDpi(14, GetDpiForSystem(), 72);
    WhileMenu([&](HWND menu) {
        SystemParametersInfoA(SPI_SETNONCLIENTMETRICS, sizeof changed, &changed, 0);
        SendMessageA(menu, WM_SETTINGCHANGE, 0, 0);
        for (const int id : {IDC_FRAME1, IDC_TREEVIEW1, IDC_LABEL2, IDC_LABEL3})
            EXPECT_EQ(FontShapeOf(ControlOf(menu, id)).lfHeight, -AtDpi(14, GetDpiForWindow(menu), 72))
                << "control " << id;
    });
    SystemParametersInfoA(SPI_SETNONCLIENTMETRICS, sizeof before, &before, 0);
}

} // namespace
} // namespace obrin::test
