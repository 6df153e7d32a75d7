// The menu window: the places and looks of its controls, and where the focus goes. EveryWindowTest tests what
// all windows have in common.

#include "menu/MenuWindowTest.h"
#include "common/Twips.h"
#include "support/RecordingShell.h"

namespace obrin::test {
namespace {

class MenuWindow : public MenuWindowTest {
protected:
    void Resize(int width, int height) const {
        SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
    }

    void MoveToScreenOf(UINT dpi) const {
        RECT place;
        GetWindowRect(window, &place);
        SendMessageA(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
    }
};

TEST_F(MenuWindow, OpensAsDesigned) {
    if (GetDpiForWindow(window) != USER_DEFAULT_SCREEN_DPI)
        GTEST_SKIP() << "The expected places are for a screen of 96 DPI.";
    const std::pair<HWND, RECT> places[] = {
        {frame, {10, 8, 410, 488}}, {tree, {10, 28, 390, 432}}, {button, {10, 440, 130, 468}}};
    for (const auto& [control, designed] : places) {
        const RECT place = PlaceOf(control);
        EXPECT_TRUE(EqualRect(&place, &designed)) << Name(control);
    }
    RECT inner;
    GetClientRect(window, &inner);
    EXPECT_EQ(inner.right, 740);
    EXPECT_EQ(inner.bottom, 500);
    EXPECT_EQ(PlaceOf(title).top, 16);
    EXPECT_EQ(PlaceOf(user).top, 60);
    EXPECT_EQ(PlaceOf(number).top, 82);
    EXPECT_EQ(PlaceOf(picture).top, 120);
}

// MenuLayoutTest tests the rules in detail.
TEST_F(MenuWindow, ControlsFollowItsSize) {
    const SIZE before = SizeOf(PlaceOf(window)), frameBefore = SizeOf(PlaceOf(frame));
    Resize(before.cx + 200, before.cy + 100);
    EXPECT_EQ(SizeOf(PlaceOf(frame)).cx, frameBefore.cx + 200);
    EXPECT_EQ(SizeOf(PlaceOf(frame)).cy, frameBefore.cy + 100);
    RECT inner;
    GetClientRect(window, &inner);
    const double pixelsPerTwip = GetDpiForWindow(window) / twipsPerInch;
    constexpr double rounding = 0.5;
    EXPECT_NEAR(inner.right - PlaceOf(link).right, 100 * pixelsPerTwip, rounding);
    EXPECT_NEAR(inner.bottom - PlaceOf(link).bottom, 20 * pixelsPerTwip, rounding);
    EXPECT_EQ(PlaceOf(question).right, PlaceOf(link).left);
    for (const HWND centred : {title, user, number, picture}) {
        const RECT place = PlaceOf(centred);
        EXPECT_NEAR(place.left + place.right, PlaceOf(frame).right + before.cx + 200, 2) << Name(centred);
    }
}

TEST_F(MenuWindow, LinkAndQuestionAreInFrontOfTheFrameAfterAResize) {
    for (const HWND control : {frame, link})
        SetWindowPos(control, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    Resize(1000, 700);
    EXPECT_EQ(GetWindow(window, GW_CHILD), link);
    EXPECT_EQ(GetWindow(link, GW_HWNDNEXT), question);
    EXPECT_EQ(GetWindow(question, GW_HWNDNEXT), frame);
}

TEST_F(MenuWindow, CentreOnScreenKeepsItInTheWorkArea) {
    RECT work;
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
    CentreOnScreen(window, {700, 500});
    const RECT centred = PlaceOf(window);
    EXPECT_NEAR(centred.left + centred.right, work.left + work.right, 1);
    EXPECT_NEAR(centred.top + centred.bottom, work.top + work.bottom, 1);
    CentreOnScreen(window, {30'000, 30'000});
    const RECT largest = PlaceOf(window);
    EXPECT_TRUE(EqualRect(&largest, &work));
}

TEST_F(MenuWindow, HasTheFontsOfItsDesign) {
    MoveToScreenOf(96);
    EXPECT_EQ(FontOf(title), "Comic Sans MS-24b") << "24 pixels, bold";
    EXPECT_EQ(FontOf(question), "Georgia-13");
    EXPECT_EQ(FontOf(link), "Georgia-13u") << "underlined";
    EXPECT_EQ(FontOf(button), "MS Sans Serif-11");
}

TEST_F(MenuWindow, PictureIsScaledSmoothlyToAHigherDpi) {
    MoveToScreenOf(144);
    EXPECT_EQ(SizeOf(PlaceOf(picture)).cx, 180);
    const UniqueDc memory(CreateCompatibleDC(nullptr));
    const LRESULT image = SendMessageA(picture, STM_GETIMAGE, IMAGE_BITMAP, 0);
    const HGDIOBJ old = SelectObject(memory.get(), reinterpret_cast<HBITMAP>(image));
    bool hasGrey = false; // in the last row; the file has only black and white
    for (int x = 0; x < 180; ++x) {
        const COLORREF pixel = GetPixel(memory.get(), x, 134);
        hasGrey = hasGrey || (pixel != CLR_INVALID && pixel != RGB(0, 0, 0) && pixel != RGB(255, 255, 255));
    }
    EXPECT_TRUE(hasGrey);
    SelectObject(memory.get(), old);
}

TEST_F(MenuWindow, ShowsTreeLinesAndTheSelectionAndCanBeResized) {
    EXPECT_TRUE(HasStyle(tree, TVS_HASLINES | TVS_LINESATROOT | TVS_HASBUTTONS));
    EXPECT_TRUE(HasStyle(tree, TVS_SHOWSELALWAYS)) << "to show which program the button would run";
    EXPECT_TRUE(HasStyle(window, WS_OVERLAPPEDWINDOW));
}

TEST_F(MenuWindow, FocusReturnsToTheLastControlWhenItIsActivatedAgain) {
    SetFocus(button);
    SendMessageA(window, WM_ACTIVATE, WA_INACTIVE, 0);
    SetFocus(window);
    EXPECT_EQ(GetFocus(), button);
}

TEST_F(MenuWindow, OpensTheAboutBoxOverItself) {
    const auto choose = [this] { SendMessageA(window, WM_COMMAND, ID_ABOUT, 0); };
    EXPECT_TRUE(ActInDialog(window, choose, [this](HWND box) {
        EXPECT_EQ(WindowText(box), "Obrin Software Systems");
        EXPECT_FALSE(IsWindowEnabled(window));
    }));
}

TEST_F(MenuWindow, OpensTheHelpOfTheShownSystem) {
    SendMessageA(window, WM_COMMAND, ID_SYSTEM_HELP, 0);
    EXPECT_EQ(TakeOpenedDocuments(), std::vector<std::string>{"Help\\UB\\Index.html"});
}

} // namespace
} // namespace obrin::test
