// The menu window: where its controls stand, at every size and on every screen, and how the keyboard moves in
// it.

#include "end_to_end/MenuHere.h"

#include "common/Twips.h"
#include "controls/Font.h"
#include "controls/Window.h"
#include "support/WindowChecks.h"

namespace obrin::test {
namespace {

class MenuWindow : public MenuHere {
protected:
    void Resize(int width, int height) const {
        SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
    }

    void MoveToScreenOf(UINT dpi) const {
        RECT place;
        GetWindowRect(window, &place);
        SendMessageA(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
    }

    using Pair = std::pair<LONG, LONG>; // across and down

    static Pair Size(HWND control) {
        const SIZE size = SizeOf(PlaceOf(control));
        return {size.cx, size.cy};
    }
    static Pair Margins(HWND outer, HWND inner) {
        return {Size(outer).first - Size(inner).first, Size(outer).second - Size(inner).second};
    }
};

TEST_F(MenuWindow, OpensAsDesigned) {
    if (GetDpiForWindow(window) != USER_DEFAULT_SCREEN_DPI)
        GTEST_SKIP() << "The places are those of a screen of 96 DPI.";
    struct {
        const char* what;
        RECT place, designed; // in its parent
    } const cases[] = {
        {"frame", PlaceOf(frame), {10, 8, 410, 488}},
        {"tree", PlaceOf(tree), {10, 28, 390, 432}},
        {"button", PlaceOf(button), {10, 440, 130, 468}},
    };
    for (const auto& [what, place, designed] : cases)
        EXPECT_TRUE(EqualRect(&place, &designed)) << what;
    RECT inner;
    GetClientRect(window, &inner);
    EXPECT_EQ(Pair(inner.right, inner.bottom), Pair(740, 500));
    EXPECT_EQ(PlaceOf(title).top, 16);
    EXPECT_EQ(PlaceOf(user).top, 60);
    EXPECT_EQ(PlaceOf(number).top, 82);
    EXPECT_EQ(PlaceOf(picture).top, 120);
}

TEST_F(MenuWindow, FrameAndTreeKeepTheirMarginsAtEverySize) {
    const Pair ofFrame = Margins(window, frame), ofTree = Margins(frame, tree);
    for (const SIZE size : {SIZE{1200, 900}, {500, 400}}) {
        Resize(size.cx, size.cy);
        EXPECT_EQ(Margins(window, frame), ofFrame) << size.cx;
        EXPECT_EQ(Margins(frame, tree), ofTree) << size.cx;
    }
}

TEST_F(MenuWindow, FrameAndTreeStayInAWindowWithoutRoomForTheMargins) {
    const Pair ofFrame = Size(frame), ofTree = Size(tree);
    Resize(1, 1); // Windows makes it a little larger
    EXPECT_EQ(Size(frame), ofFrame);
    EXPECT_EQ(Size(tree), ofTree);
}

TEST_F(MenuWindow, LinkIsInTheLowerRightCornerWithItsLabelBesideIt) {
    Resize(1000, 700);
    RECT inner;
    GetClientRect(window, &inner);
    const double twips = GetDpiForWindow(window) / twipsPerInch; // in pixels
    constexpr double rounding = 0.5;
    EXPECT_NEAR(inner.right - PlaceOf(link).right, 100 * twips, rounding);
    EXPECT_NEAR(inner.bottom - PlaceOf(link).bottom, 20 * twips, rounding);
    EXPECT_EQ(PlaceOf(idea).right, PlaceOf(link).left);
    EXPECT_EQ(PlaceOf(idea).top, PlaceOf(link).top);
    EXPECT_EQ(
        Size(idea).first,
        MeasureText(reinterpret_cast<HFONT>(SendMessageA(idea, WM_GETFONT, 0, 0)), "Got a better idea? ").cx)
        << "a blank before the link";
}

TEST_F(MenuWindow, TitleUserNumberAndPictureAreCentredByTheOuterWidth) {
    Resize(1000, 700);
    const LONG right = Size(window).first; // behind the inner one by the width of the border
    for (const HWND centred : {title, user, number, picture}) {
        const RECT place = PlaceOf(centred);
        EXPECT_NEAR(place.left + place.right, PlaceOf(frame).right + right, 2) << TextOf(centred);
    }
}

TEST_F(MenuWindow, LinkAndItsLabelComeBeforeTheFrameAfterAResize) {
    for (const HWND control : {frame, link})
        SetWindowPos(control, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    Resize(1000, 700);
    EXPECT_EQ(GetWindow(window, GW_CHILD), link);
    EXPECT_EQ(GetWindow(link, GW_HWNDNEXT), idea);
    EXPECT_EQ(GetWindow(idea, GW_HWNDNEXT), frame);
}

TEST_F(MenuWindow, IsCentredOnItsScreenAndNoLargerThanIt) {
    RECT work, place;
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
    CentreOnScreen(window, {700, 500});
    GetWindowRect(window, &place);
    EXPECT_NEAR(place.left + place.right, work.left + work.right, 1);
    EXPECT_NEAR(place.top + place.bottom, work.top + work.bottom, 1);
    CentreOnScreen(window, {30'000, 30'000});
    GetWindowRect(window, &place);
    EXPECT_TRUE(EqualRect(&place, &work));
}

TEST_F(MenuWindow, FontsHaveTheSizeOfTheirScreen) {
    struct {
        HWND control;
        const char *at96, *at192;
    } const cases[] = {
        {title, "Comic Sans MS-24b", "Comic Sans MS-48b"}, // bold
        {idea, "Georgia-13", "Georgia-27"},
        {link, "Georgia-13u", "Georgia-27u"}, // underlined
        {button, "MS Sans Serif-11", "MS Sans Serif-21"},
    };
    for (const auto& [control, at96, at192] : cases) {
        MoveToScreenOf(96);
        EXPECT_EQ(FontOf(control), at96);
        MoveToScreenOf(192);
        EXPECT_EQ(FontOf(control), at192);
    }
}

TEST_F(MenuWindow, PictureGrowsWithTheScreenWholeAndSmoothly) {
    MoveToScreenOf(144);
    EXPECT_EQ(Size(picture), Pair(180, 135));
    const UniqueDc memory(CreateCompatibleDC(nullptr));
    const LRESULT image = SendMessageA(picture, STM_GETIMAGE, IMAGE_BITMAP, 0);
    const HGDIOBJ none = SelectObject(memory.get(), reinterpret_cast<HBITMAP>(image));
    bool hasGrey = false; // in the last line of a picture of black and white
    for (int x = 0; x < 180; ++x) {
        const COLORREF pixel = GetPixel(memory.get(), x, 134);
        hasGrey = hasGrey || (pixel != CLR_INVALID && pixel != RGB(0, 0, 0) && pixel != RGB(255, 255, 255));
    }
    EXPECT_TRUE(hasGrey);
    SelectObject(memory.get(), none);
}

TEST_F(MenuWindow, NewThemeOrColoursBringNewFontsAndALayoutForThem) {
    const auto fontOf = [](HWND control) { return SendMessageA(control, WM_GETFONT, 0, 0); };
    for (const UINT change : {UINT{WM_SETTINGCHANGE}, UINT{WM_THEMECHANGED}, UINT{WM_SYSCOLORCHANGE}}) {
        const LRESULT oldFont = fontOf(tree);
        SetWindowPos(number, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        SendMessageA(window, change, 0, 0);
        EXPECT_NE(fontOf(tree), oldFont);
        EXPECT_GT(PlaceOf(number).left, 0);
    }
}

TEST_F(MenuWindow, AmpersandOfATitleIsShownOnceEverywhere) {
    const auto font = reinterpret_cast<HFONT>(SendMessageA(title, WM_GETFONT, 0, 0));
    EXPECT_EQ(Size(title).first, MeasureText(font, "Water & Waste").cx);
    EXPECT_EQ(TextOf(tree), "Water & Waste") << "for screen readers";
    std::array<char, 80> item{};
    GetMenuStringA(GetMenu(window), ID_SYSTEMS, item.data(), item.size(), MF_BYCOMMAND);
    EXPECT_STREQ(item.data(), "Water && Waste") << "a menu shows this as one &";
}

TEST_F(MenuWindow, HasTheStylesThatItNeeds) {
    struct {
        const char* reason;
        HWND styled;
        DWORD style;
    } const cases[] = {
        {"can be sized, minimized and closed", window, WS_OVERLAPPEDWINDOW},
        {"does not paint over its controls", window, WS_CLIPCHILDREN},
        {"does not paint over the tree", frame, WS_CLIPCHILDREN},
        {"is a frame", frame, BS_GROUPBOX},
        {"lines and boxes show the levels", tree, TVS_HASLINES | TVS_LINESATROOT | TVS_HASBUTTONS},
        {"shows the program that the button would run", tree, TVS_SHOWSELALWAYS},
        {"a click that slips selects", tree, TVS_DISABLEDRAGDROP},
        {"shows the & of a title", title, SS_NOPREFIX},
        {"shows the & of a name", user, SS_NOPREFIX},
        {"shows a bitmap", picture, SS_BITMAP},
        {"can be clicked", link, SS_NOTIFY},
    };
    for (const auto& [reason, styled, style] : cases)
        EXPECT_TRUE(HasStyle(styled, style)) << reason;
    EXPECT_TRUE(GetWindowExStyle(tree) & WS_EX_CLIENTEDGE) << "a sunken edge";
}

TEST_F(MenuWindow, HasItsIconAndBackground) {
    EXPECT_EQ(GetClassLongPtrA(window, GCLP_HICON),
              reinterpret_cast<ULONG_PTR>(LoadIconA(Instance(), MAKEINTRESOURCEA(IDI_OBRIN))));
    EXPECT_EQ(GetClassLongPtrA(window, GCLP_HBRBACKGROUND),
              reinterpret_cast<ULONG_PTR>(GetSysColorBrush(COLOR_BTNFACE)));
}

TEST_F(MenuWindow, TreeAndLinkTakeEnterAndLeaveTab) {
    for (const HWND control : {tree, link}) {
        for (const WPARAM key : {WPARAM{VK_RETURN}, WPARAM{VK_TAB}}) {
            MSG typed{control, WM_KEYDOWN, key, 0, 0, {}};
            const LRESULT code = SendMessageA(control, WM_GETDLGCODE, key, reinterpret_cast<LPARAM>(&typed));
            EXPECT_EQ((code & DLGC_WANTMESSAGE) != 0, key == VK_RETURN);
        }
    }
}

TEST_F(MenuWindow, KeyboardComesBackFromAnotherWindowToItsControl) {
    SetFocus(button);
    SendMessageA(window, WM_ACTIVATE, WA_INACTIVE, 0);
    SetFocus(window);
    EXPECT_EQ(GetFocus(), button);
}

} // namespace
} // namespace obrin::test
