// The link "E-Mail us!" of the menu window, and the mouse pointer, which it changes for the whole window.

#include "menu/MenuWindowTest.h"
#include "support/Eventually.h"
#include "support/RecordingShell.h"

namespace obrin::test {
namespace {

class Link : public MenuWindowTest {
protected:
    // Moves the pointer to a place in a control. Returns the shape of the pointer.
    static HCURSOR PointerOver(HWND control, LONG x, LONG y) {
        POINT place{x, y};
        ClientToScreen(control, &place);
        PointAt(place);
        const HWND under =
            WindowFromPoint(place); // the menu window if the control is transparent to the mouse
        SendMessageA(under, WM_SETCURSOR, reinterpret_cast<WPARAM>(under),
                     MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return GetCursor();
    }
    const HCURSOR arrow = LoadCursorA(nullptr, IDC_ARROW), crosshair = LoadCursorA(nullptr, IDC_CROSS);
    static constexpr const char* shortcut = "Help\\BetterIdea.url";
};

TEST_F(Link, IsOpenedOnceByEnterOrSpaceEvenIfTheKeyIsHeld) {
    for (const WPARAM key : {WPARAM{VK_RETURN}, WPARAM{VK_SPACE}, WPARAM{VK_DOWN}}) {
        SendMessageA(link, WM_KEYDOWN, key, 0);
        SendMessageA(link, WM_KEYDOWN, key, LPARAM{KF_REPEAT} << 16);
    }
    EXPECT_EQ(TakeOpenedDocuments(), (std::vector<std::string>{shortcut, shortcut}));
}

TEST_F(Link, HandlesEnterButLeavesTabToTheDialogManager) {
    for (const WPARAM key : {WPARAM{VK_RETURN}, WPARAM{VK_TAB}}) {
        MSG typed{link, WM_KEYDOWN, key, 0, 0, {}};
        const LRESULT code = SendMessageA(link, WM_GETDLGCODE, key, reinterpret_cast<LPARAM>(&typed));
        EXPECT_EQ((code & DLGC_WANTMESSAGE) != 0, key == VK_RETURN);
    }
}

TEST_F(Link, IsOpenedOnceByADoubleClick) {
    SendMessageA(link, WM_LBUTTONDOWN, MK_LBUTTON, 0);
    SendMessageA(link, WM_LBUTTONUP, 0, 0);
    SendMessageA(link, WM_LBUTTONDBLCLK, MK_LBUTTON, 0);
    EXPECT_EQ(TakeOpenedDocuments(), std::vector<std::string>{shortcut});
}

TEST_F(Link, ShowsAFocusRectangleOnlyWhileItHasTheFocus) {
    const HDC dc = GetDC(link);
    for (const HWND focused : {link, tree, link}) {
        SetFocus(focused);
        SendMessageA(window, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
        UpdateWindow(link);
        const bool isDotted = GetPixel(dc, 0, 0) != GetPixel(dc, 1, 0);
        EXPECT_EQ(isDotted, focused == link);
    }
    ReleaseDC(link, dc);
}

TEST_F(Link, HasTheColoursOfALinkOnTheWindowsBackground) {
    const HDC dc = GetDC(link);
    const LRESULT brush =
        SendMessageA(window, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(link));
    EXPECT_EQ(brush, reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE)));
    EXPECT_EQ(GetTextColor(dc), GetSysColor(COLOR_HOTLIGHT));
    EXPECT_EQ(GetBkMode(dc), TRANSPARENT);
    ReleaseDC(link, dc);
}

TEST_F(Link, TurnsThePointerIntoACrosshairThatOtherControlsKeep) {
    EXPECT_EQ(PointerOver(question, 5, 5), arrow);
    for (const HWND control : {link, question, title, tree})
        EXPECT_EQ(PointerOver(control, 5, 5), crosshair) << Name(control);
    EXPECT_EQ(PointerOver(frame, 4, 100), crosshair);
    EXPECT_FALSE(SendMessageA(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window),
                              MAKELPARAM(HTRIGHT, WM_MOUSEMOVE)))
        << "the border has pointers of its own";
}

TEST_F(Link, LosesTheCrosshairWhenThePointerReachesTheBackground) {
    EXPECT_EQ(PointerOver(link, 5, 5), crosshair);
    EXPECT_EQ(PointerOver(window, PlaceOf(frame).right + 10, PlaceOf(frame).bottom - 10), arrow);
    EXPECT_EQ(PointerOver(frame, 4, 100), arrow);
}

} // namespace
} // namespace obrin::test
