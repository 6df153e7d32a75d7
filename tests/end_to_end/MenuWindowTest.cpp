// The menu window from outside: where its controls stand after a resize, the pointer, the about box.

#include "end_to_end/Installation.h"

#include "resources/Ids.h"

#include <gtest/gtest.h>

#include <optional>

namespace obrin::test {
namespace {

struct MenuWindow : testing::Test {
    MenuWindow() {
        installation.KnowUser(5);
        launcher.emplace();
        EXPECT_TRUE(installation.HostHasTyped("UB"));
        menu = launcher->Menu();
    }

    HWND Control(int id) const { return GetDlgItem(menu, id); }

    /// A window's place in the menu window's inside.
    RECT Place(HWND window) const {
        RECT place;
        GetWindowRect(window, &place);
        MapWindowPoints(nullptr, menu, reinterpret_cast<POINT*>(&place), 2);
        return place;
    }

    const Installation installation;
    std::optional<Launcher> launcher;
    HWND menu = nullptr;
};

int Width(const RECT& place) {
    return place.right - place.left;
}
int Height(const RECT& place) {
    return place.bottom - place.top;
}

TEST_F(MenuWindow, KeepsItsMarginsAtEverySize) {
    const RECT outer = Place(menu);
    const RECT frame = Place(Control(IDC_FRAME1));
    const RECT tree = Place(launcher->Tree());
    const int twip100 = MulDiv(100, static_cast<int>(GetDpiForWindow(menu)), 1440);
    for (const SIZE size : {SIZE{1200, 900}, {560, 400}, {300, 200}, {1, 1}, {Width(outer), Height(outer)}}) {
        SetWindowPos(menu, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        const RECT now = Place(menu);
        const RECT frameNow = Place(Control(IDC_FRAME1));
        const RECT treeNow = Place(launcher->Tree());
        // Where there is room for the margins.
        if (Width(now) > Width(outer) - Width(frame)) {
            EXPECT_EQ(Width(now) - Width(frameNow), Width(outer) - Width(frame));
        }
        if (Height(now) > Height(outer) - Height(frame)) {
            EXPECT_EQ(Height(now) - Height(frameNow), Height(outer) - Height(frame));
        }
        if (Width(frameNow) > Width(frame) - Width(tree)) {
            EXPECT_EQ(Width(frameNow) - Width(treeNow), Width(frame) - Width(tree));
        }
        EXPECT_GT(Height(treeNow), 0);

        for (const int id : {IDC_LABEL1, IDC_IMAGE1, IDC_LABEL2, IDC_LABEL3}) {
            const RECT place = Place(Control(id));
            EXPECT_NEAR(place.left + place.right, frameNow.right + Width(now), 2) << id;
        }
        RECT inner;
        GetClientRect(menu, &inner);
        const RECT link = Place(Control(IDC_LABEL5));
        EXPECT_NEAR(inner.right - link.right, twip100, 1);
        EXPECT_NEAR(inner.bottom - link.bottom, twip100 / 5, 1);
        EXPECT_EQ(Place(Control(IDC_LABEL4)).right, link.left);
        EXPECT_EQ(Place(Control(IDC_LABEL4)).top, link.top);

        // From the front: the link, the label beside it, the frame.
        HWND inFront = GetWindow(menu, GW_CHILD);
        for (const int id : {IDC_LABEL5, IDC_LABEL4, IDC_FRAME1}) {
            EXPECT_EQ(GetDlgCtrlID(inFront), id);
            inFront = GetWindow(inFront, GW_HWNDNEXT);
        }
    }
    EXPECT_EQ(Width(Place(launcher->Tree())), Width(tree)) << "as designed again";
}

TEST_F(MenuWindow, PointerIsACrosshairFromTheLinkToTheBackground) {
    SetForegroundWindow(menu);
    const auto pointerAt = [&](POINT place) {
        ClientToScreen(menu, &place);
        CURSORINFO pointer{};
        // Two moves: the first one only enters the control. Nothing tells when a move that must change
        // nothing has been handled, so each gets a moment.
        for (const int x : {0, 1}) {
            SetCursorPos(place.x + x, place.y);
            Sleep(50);
        }
        pointer.cbSize = sizeof pointer;
        GetCursorInfo(&pointer);
        return pointer.hCursor;
    };
    const auto over = [&](HWND control) {
        const RECT place = Place(control);
        return pointerAt({(place.left + place.right) / 2, (place.top + place.bottom) / 2});
    };
    const RECT frame = Place(Control(IDC_FRAME1));
    const POINT background{frame.right + 10, frame.bottom - 10};
    const POINT insideFrame{frame.left + 4, frame.bottom - 10};

    const HCURSOR arrow = pointerAt(background);
    EXPECT_EQ(over(Control(IDC_LABEL4)), arrow);
    const HCURSOR crosshair = over(Control(IDC_LABEL5));
    EXPECT_NE(crosshair, arrow);
    for (const int id : {IDC_LABEL4, IDC_LABEL1, IDC_LABEL2})
        EXPECT_EQ(over(Control(id)), crosshair) << id;
    EXPECT_EQ(over(launcher->Tree()), crosshair);
    EXPECT_EQ(pointerAt(insideFrame), crosshair);
    EXPECT_EQ(pointerAt(background), arrow);
    EXPECT_EQ(pointerAt(insideFrame), arrow);
}

TEST_F(MenuWindow, AboutBoxIsModal) {
    PostMessageA(menu, WM_COMMAND, ID_ABOUT, 0);
    const HWND about = launcher->Window("Obrin Software Systems");
    ASSERT_TRUE(about);
    EXPECT_EQ(GetWindow(about, GW_OWNER), menu);
    EXPECT_FALSE(IsWindowEnabled(menu));
    launcher->Press("Obrin Software Systems", IDOK);
    EXPECT_TRUE(Eventually([&] { return IsWindowEnabled(menu) != FALSE; }));
}

} // namespace
} // namespace obrin::test
