#include "maintenance/frmAbout.h"

#include "maintenance/AboutTexts.h"
#include "maintenance/LocalMachine.h"
#include "maintenance/ModalAction.h"
#include "platform/Font.h"
#include "resources/Ids.h"

#include <gtest/gtest.h>

#include <psapi.h>

#include <algorithm>
#include <array>

namespace obrin {
namespace {

using UniqueBrush = std::unique_ptr<std::remove_pointer_t<HBRUSH>, DeleteGdiObject>;

class AboutBox : public testing::Test {
protected:
    AboutBox()
        : owner(CreateWindowExA(0, "STATIC", "", WS_OVERLAPPEDWINDOW, 0, 0, 700, 500, nullptr, nullptr,
                                nullptr, nullptr)) {}
    ~AboutBox() override { DestroyWindow(owner); }

    void ShowWhile(const std::function<void(HWND)>& action) {
        const test::ModalAction modal(owner, action);
        frmAbout().Show(owner);
    }

    HWND owner;
};

TEST_F(AboutBox, SaysItsTexts) {
    struct {
        int id;
        std::string text;
    } const expected[] = {
        {IDC_LBL_TITLE, "Obrin Core System"},
        {IDC_LBL_VERSION, VersionText(ProgramVersion())},
        {IDC_LBL_DESCRIPTION, descriptionText},
        {IDC_LBL_DISCLAIMER, disclaimerText},
        {IDOK, "OK"},
        {IDC_CMD_SYS_INFO, "&System Info..."},
    };
    ShowWhile([&](HWND box) {
        EXPECT_EQ(WindowText(box), "Obrin Software Systems");
        EXPECT_FALSE(IsWindowEnabled(owner));
        EXPECT_NE(SendDlgItemMessageA(box, IDC_PIC_ICON, STM_GETICON, 0, 0), 0);
        EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDOK);
        for (const auto& [id, text] : expected)
            EXPECT_EQ(WindowText(GetDlgItem(box, id)), text);
        SendMessageA(box, WM_COMMAND, IDOK, 0);
    });
    EXPECT_TRUE(IsWindowEnabled(owner));
}

// Every text has the room that it needs, no control covers another, and none leaves the box.
TEST_F(AboutBox, ClipsNothing) {
    ShowWhile([](HWND box) {
        RECT inner;
        GetClientRect(box, &inner);
        MapWindowPoints(box, nullptr, reinterpret_cast<POINT*>(&inner), 2);
        std::vector<RECT> places;
        for (HWND control = GetWindow(box, GW_CHILD); control != nullptr;
             control = GetWindow(control, GW_HWNDNEXT)) {
            RECT place;
            RECT common;
            GetWindowRect(control, &place);
            const SIZE needed = MeasureText(control, WindowText(control), place.right - place.left);
            EXPECT_GE(place.bottom - place.top, needed.cy) << WindowText(control);
            UnionRect(&common, &inner, &place);
            EXPECT_TRUE(EqualRect(&common, &inner)) << WindowText(control);
            for (const RECT& other : places)
                EXPECT_FALSE(IntersectRect(&common, &place, &other)) << WindowText(control);
            places.push_back(place);
            if (GetDlgCtrlID(control) == IDC_LBL_DESCRIPTION) {
                EXPECT_EQ(place.bottom - place.top, needed.cy) << "sized to its text";
            }
        }
        SendMessageA(box, WM_CLOSE, 0, 0);
    });
}

TEST_F(AboutBox, StaysOpenBehindTheToolsMessage) {
    const test::LocalMachine empty;
    HWND about = nullptr;
    int messages = 0;
    ShowWhile([&](HWND top) {
        if (about == nullptr) {
            about = top;
            PostMessageA(about, WM_COMMAND, IDC_CMD_SYS_INFO, 0);
        } else if (top != about) {
            ++messages;
            EXPECT_EQ(GetWindow(top, GW_OWNER), about);
            EndDialog(top, IDOK);
        } else if (messages > 0) {
            SendMessageA(about, WM_COMMAND, IDCANCEL, 0);
        }
    });
    EXPECT_EQ(messages, 1);
}

// The drawing objects of this process. Where the platform does not count them: the highest number among so
// many new ones that no number below it is left, which grows with every object that stays behind.
DWORD GdiObjects() {
    if (const DWORD count = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS); count != 0)
        return count;
    std::array<UniqueBrush, 2000> brushes;
    DWORD highest = 0;
    for (UniqueBrush& brush : brushes) {
        brush.reset(CreateSolidBrush(RGB(1, 2, 3)));
        highest = std::max<DWORD>(highest, LOWORD(brush.get()));
    }
    return highest;
}

SIZE_T PrivateBytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage;
}

TEST_F(AboutBox, LeavesNothingBehind) {
    const auto showTimes = [&](int times) {
        for (int i = 0; i < times; ++i)
            ShowWhile([](HWND box) { SendMessageA(box, WM_COMMAND, IDOK, 0); });
    };
    showTimes(10);
    const DWORD gdi = GdiObjects();
    const SIZE_T memory = PrivateBytes(); // behind the objects that were made for counting
    const DWORD user = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    showTimes(190);
    ASSERT_GT(memory, 0U);
    EXPECT_LE(PrivateBytes(), memory + 64 * 1024);
    EXPECT_LT(GdiObjects(), gdi + 50);
    EXPECT_LT(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS), user + 50);
}

} // namespace
} // namespace obrin
