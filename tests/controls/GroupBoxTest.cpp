#include "controls/GroupBox.h"

#include "platform/Handle.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

struct GroupBox : testing::Test {
    GroupBox() { MakeContainer(box); }
    ~GroupBox() override { DestroyWindow(box); }

    const HWND box = CreateWindowExA(0, WC_BUTTONA, "Caption", WS_POPUP | BS_GROUPBOX, 0, 0, 200, 100,
                                     nullptr, nullptr, nullptr, nullptr);
};

// A themed button asks its parent to paint the background behind its round corners.
TEST_F(GroupBox, PaintsTheBackgroundOfAButtonInIt) {
    const HWND button = CreateWindowExA(0, WC_BUTTONA, "Run", WS_CHILD | WS_VISIBLE, 20, 40, 90, 30, box,
                                        nullptr, nullptr, nullptr);
    const HDC screen = GetDC(nullptr);
    const UniqueDc memory(CreateCompatibleDC(screen));
    const UniqueBitmap bitmap(CreateCompatibleBitmap(screen, 90, 30));
    ReleaseDC(nullptr, screen);
    const HGDIOBJ old = SelectObject(memory.get(), bitmap.get());
    PatBlt(memory.get(), 0, 0, 90, 30, BLACKNESS);
    DrawThemeParentBackground(button, memory.get(), nullptr);
    for (const auto& [x, y] : {std::pair{0, 0}, {89, 0}, {0, 29}, {89, 29}})
        EXPECT_NE(GetPixel(memory.get(), x, y), RGB(0, 0, 0)) << "corner " << x << ", " << y;
    SelectObject(memory.get(), old);
}

TEST_F(GroupBox, PaintsItsInsideAndItsBorder) {
    ShowWindow(box, SW_SHOWNOACTIVATE);
    UpdateWindow(box);
    const HDC screen = GetDC(box);
    EXPECT_EQ(GetPixel(screen, 100, 90), GetSysColor(COLOR_BTNFACE)) << "inside";
    EXPECT_NE(GetPixel(screen, 0, 50), GetSysColor(COLOR_BTNFACE)) << "border";
    ReleaseDC(box, screen);
}

} // namespace
} // namespace obrin
