#include "controls/WindowTest.h"

namespace obrin::test {
namespace {

using AboutBox = WindowTest;

TEST_F(AboutBox, ShowsTheIconAndItsTitleInBoldLetters) {
    WhileAboutBox([](HWND box) {
        EXPECT_NE(SendDlgItemMessageA(box, IDC_PIC_ICON, STM_GETICON, 0, 0), 0);
        EXPECT_EQ(FontShapeOf(GetDlgItem(box, IDC_LBL_TITLE)).lfWeight, FW_BOLD);
    });
}

TEST_F(AboutBox, StaysOpenAfterTheMessageThatTheToolIsMissing) {
    WhileAboutBox([](HWND box) {
        const auto press = [=] { SendDlgItemMessageA(box, IDC_CMD_SYS_INFO, BM_CLICK, 0, 0); };
        EXPECT_TRUE(
            ActInDialog(box, press, [](HWND message) { EXPECT_EQ(WindowText(message), "ObrinMenu"); }));
        EXPECT_TRUE(IsWindowVisible(box));
    });
}

} // namespace
} // namespace obrin::test
