#include "maintenance/frmAbout.h"

#include "resources/Ids.h"
#include "support/DialogTest.h"
#include "support/LocalMachine.h"

namespace obrin {
namespace {

struct AboutBox : test::DialogTest {
    AboutBox() {
        about.ShowModeless(owner, IDD_ABOUT);
        box = DialogOver(owner);
    }
    ~AboutBox() override { DestroyWindow(box); }

    frmAbout about;
    HWND box = nullptr;
};

TEST_F(AboutBox, ShowsTheIconAndItsTitleInBoldLetters) {
    EXPECT_NE(SendDlgItemMessageA(box, IDC_PIC_ICON, STM_GETICON, 0, 0), 0);
    EXPECT_EQ(test::FontShapeOf(GetDlgItem(box, IDC_LBL_TITLE)).lfWeight, FW_BOLD);
}

TEST_F(AboutBox, StaysOpenBehindTheMessageThatThereIsNoTool) {
    const test::LocalMachine empty;
    std::string title;
    ActInDialog(
        box, [=, this] { SendMessageA(GetDlgItem(box, IDC_CMD_SYS_INFO), BM_CLICK, 0, 0); },
        [&](HWND message) { title = WindowText(message); });
    EXPECT_EQ(title, "ObrinMenu");
    EXPECT_TRUE(IsWindowVisible(box));
}

} // namespace
} // namespace obrin
