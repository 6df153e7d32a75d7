#include "maintenance/frmAbout.h"

#include "controls/Font.h"
#include "controls/WindowText.h"
#include "support/ModalTest.h"
#include "support/WindowChecks.h"

namespace obrin {
namespace {

class AboutBox : public test::ModalTest {
protected:
    void ShowWhile(const std::function<void(HWND)>& act) {
        While([this] { frmAbout().Show(owner); }, act);
    }
};

// On every screen each text has the room that it needs, no control covers another, and none leaves the box.
TEST_F(AboutBox, SaysItsTextsUnclipped) {
    ShowWhile([&](HWND box) {
        EXPECT_FALSE(IsWindowEnabled(owner));
        EXPECT_NE(SendDlgItemMessageA(box, IDC_PIC_ICON, STM_GETICON, 0, 0), 0);
        EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDOK);
        for (const UINT dpi : {96U, 120U, 144U, 168U, 192U}) {
            RECT inner{}, outer, frame{}, place, common;
            SendMessageA(box, WM_DPICHANGED, dpi, reinterpret_cast<LPARAM>(&inner));
            GetClientRect(box, &inner);
            MapWindowPoints(box, nullptr, reinterpret_cast<POINT*>(&inner), 2);
            std::vector<RECT> places;
            for (HWND control = GetWindow(box, GW_CHILD); control != nullptr;
                 control = GetWindow(control, GW_HWNDNEXT)) {
                const std::string text = WindowText(control);
                GetWindowRect(control, &place);
                EXPECT_GE(place.bottom - place.top, MeasureText(control, text, place.right - place.left).cy)
                    << text;
                UnionRect(&common, &inner, &place);
                EXPECT_TRUE(EqualRect(&common, &inner)) << text;
                for (const RECT& other : places)
                    EXPECT_FALSE(IntersectRect(&common, &place, &other)) << text;
                places.push_back(place);
            }
            // The frame is not drawn anew: it stays that of the screen where the box really is.
            AdjustWindowRectExForDpi(&frame, GetWindowStyle(box), FALSE, GetWindowExStyle(box), dpi);
            GetWindowRect(box, &outer);
            const LONG bottom = inner.top + (outer.bottom - outer.top) - (frame.bottom - frame.top);
            EXPECT_NEAR(bottom - places.back().bottom, static_cast<double>(dpi) / 6,
                        static_cast<double>(dpi) / 10);
        }
        EXPECT_GT(MeasureText(box, "a a a", 10).cy, MeasureText(box, "a", 10).cy) << "lines are broken";
        EXPECT_EQ(test::FontOf(GetDlgItem(box, IDC_LBL_TITLE)), "MS Shell Dlg-35b");
        EXPECT_EQ(WindowText(GetDlgItem(box, IDC_LBL_VERSION)), "Version " OBRIN_PROJECT_VERSION);
        SendMessageA(box, WM_COMMAND, IDOK, 0);
    });
    EXPECT_TRUE(IsWindowEnabled(owner));
}

TEST_F(AboutBox, StaysOpenBehindTheToolsMessage) {
    const test::LocalMachine empty;
    std::vector<std::string> titles;
    ShowWhile([&](HWND top) {
        titles.push_back(WindowText(top));
        if (titles.size() == 2)
            EndDialog(top, IDOK);
        else
            PostMessageA(top, WM_COMMAND, titles.size() == 1 ? IDC_CMD_SYS_INFO : IDCANCEL, 0);
    });
    const std::string box = "Obrin Software Systems";
    EXPECT_EQ(titles, (std::vector<std::string>{box, "ObrinMenu", box}));
}

} // namespace
} // namespace obrin
