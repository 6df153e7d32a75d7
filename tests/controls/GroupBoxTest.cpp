#include "controls/GroupBox.h"

#include "platform/Handle.h"

#include <gtest/gtest.h>

namespace obrin {

// A themed button has its parent paint what is behind its round corners.
TEST(GroupBox, PaintsWhatIsBehindAButtonInIt) {
    const HWND box = CreateWindowExA(0, WC_BUTTONA, "Caption", WS_POPUP | BS_GROUPBOX, 0, 0, 200, 100,
                                     nullptr, nullptr, nullptr, nullptr);
    MakeContainer(box);
    constexpr int width = 90, height = 30;
    const HWND button = CreateWindowExA(0, WC_BUTTONA, "Run", WS_CHILD | WS_VISIBLE, 20, 40, width, height,
                                        box, nullptr, nullptr, nullptr);
    const HDC screen = GetDC(nullptr);
    const UniqueDc memory(CreateCompatibleDC(screen));
    const UniqueBitmap bitmap(CreateCompatibleBitmap(screen, width, height));
    ReleaseDC(nullptr, screen);
    const HGDIOBJ old = SelectObject(memory.get(), bitmap.get());
    PatBlt(memory.get(), 0, 0, width, height, BLACKNESS);
    DrawThemeParentBackground(button, memory.get(), nullptr);
    int left = 0;
    for (int pixel = 0; pixel < width * height; ++pixel)
        left += GetPixel(memory.get(), pixel % width, pixel / width) == RGB(0, 0, 0) ? 1 : 0;
    EXPECT_EQ(left, 0) << "pixels are not painted";
    SelectObject(memory.get(), old);
    DestroyWindow(box);
}

TEST(GroupBox, PaintsItsInsideAndItsBorder) {
    const HWND box = CreateWindowExA(0, WC_BUTTONA, "Caption", WS_POPUP | BS_GROUPBOX, 0, 0, 200, 100,
                                     nullptr, nullptr, nullptr, nullptr);
    MakeContainer(box);
    ShowWindow(box, SW_SHOWNOACTIVATE);
    UpdateWindow(box);
    const HDC screen = GetDC(box);
    EXPECT_EQ(GetPixel(screen, 100, 90), GetSysColor(COLOR_BTNFACE)) << "inside";
    EXPECT_NE(GetPixel(screen, 0, 50), GetSysColor(COLOR_BTNFACE)) << "border";
    ReleaseDC(box, screen);
    DestroyWindow(box);
}

} // namespace obrin
