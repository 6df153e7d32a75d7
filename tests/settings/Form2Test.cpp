#include "settings/Form2.h"

#include "common/Numbers.h"
#include "platform/Dialog.h"
#include "platform/File.h"
#include "platform/Handle.h"
#include "platform/ScratchFolder.h"
#include "resources/Ids.h"
#include "settings/SettingsStore.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <vector>

namespace obrin {
namespace {

constexpr const char* key = "Core\\Programs\\CSBackup";
constexpr const char* registryKey = "Software\\Obrin\\Menu";

// What is done to the dialog while it is modal: a timer of the thread runs it between two messages.
std::function<void(HWND)> script;

void CALLBACK Play(HWND, UINT, UINT_PTR timer, DWORD) {
    const HWND dialog = FindWindowA(nullptr, "Properties");
    if (dialog == nullptr || !IsWindowVisible(dialog))
        return;
    KillTimer(nullptr, timer);
    script(dialog);
    if (IsWindow(dialog))
        PostMessageA(dialog, WM_CLOSE, 0, 0);
}

class Properties : public testing::Test {
protected:
    Properties() {
        SetEnvironmentVariableA("TesselTemp", folder.path.string().c_str());
        const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES};
        InitCommonControlsEx(&controls);
    }

    // Opens the dialog, plays, and returns when it is closed.
    void Open(std::function<void()> play) {
        script = [this, &play](HWND opened) {
            dialog = opened;
            play();
        };
        SetTimer(nullptr, 0, 10, Play);
        Form2(corvel, treeTag).Show(nullptr);
    }

    HWND Item(int id) const {
        HWND item = GetDlgItem(dialog, id);
        for (HWND page = GetWindow(dialog, GW_CHILD); item == nullptr; page = GetWindow(page, GW_HWNDNEXT))
            item = GetDlgItem(page, id);
        return item;
    }
    std::vector<HWND> Pages() const {
        return {GetParent(Item(IDC_TXT_SYSTEM)), GetParent(Item(IDC_TXT_HEIGHT)),
                GetParent(Item(IDC_TXT_MARGIN))};
    }
    std::string Text(int id) const { return WindowText(Item(id)); }
    void SetText(int id, const char* text) const { SetWindowTextA(Item(id), text); }
    void Press(int button) const { SendMessageA(Item(button), BM_CLICK, 0, 0); }
    void SelectTab(int index) const {
        const HWND tabs = Item(IDC_TABSTRIP1);
        RECT tab;
        SendMessageA(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&tab));
        const LPARAM place = MAKELPARAM((tab.left + tab.right) / 2, (tab.top + tab.bottom) / 2);
        SendMessageA(tabs, WM_LBUTTONDOWN, MK_LBUTTON, place);
        SendMessageA(tabs, WM_LBUTTONUP, 0, place);
    }
    LRESULT Slider(int index) const { return SendMessageA(Item(IDC_SLD_MARGIN + index), TBM_GETPOS, 0, 0); }
    // The orientation's list, as the keyboard moves in it.
    void DropDown(bool open) const { SendMessageA(Item(IDC_CMB_ORIENTATION), CB_SHOWDROPDOWN, open, 0); }
    void ArrowInOrientation(WPARAM arrow) const {
        SendMessageA(GetWindow(Item(IDC_CMB_ORIENTATION), GW_CHILD), WM_KEYDOWN, arrow, 0);
    }
    std::string Size() const { return Text(IDC_TXT_HEIGHT) + " x " + Text(IDC_TXT_WIDTH); }

    std::string Path() const { return SettingsPath(key); }
    std::optional<std::string> Saved(std::string_view name) const {
        const auto setting = std::ranges::find(settings, name, &Setting::key);
        return LoadSystemSettings(Path())[static_cast<std::size_t>(setting - settings.begin())];
    }
    void WriteSettings(const std::string& text) const {
        WriteDefaultSettings(Path(), key);
        WriteFileBytes(Path(), text);
    }

    test::ScratchFolder folder;
    SupportLibrary corvel;
    std::string treeTag = key;
    HWND dialog = nullptr;
};

TEST_F(Properties, FirstOpeningWritesAndShowsTheDefaultsAndRestoringNamesTheFileItself) {
    corvel.SetRegValue(HKEY_LOCAL_MACHINE, registryKey, "LastSystem", "WA.mnu");
    const auto file = [](const std::string& name) {
        return "Program           =     " + name + "\r\nHelpFile          =     Core\\Help\\" + name +
               "\r\nSaveToAsStart     =     \r\nOrientation       =     Portrait\r\n"
               "Height            =     11.000\r\nWidth             =     8.500\r\n"
               "Lines             =     54\r\nColumns           =     220\r\nFontSize          =     10\r\n"
               "TopMargin         =     0.500\r\nBottomMargin      =     0.500\r\n"
               "LeftMargin        =     0.500\r\nRightMargin       =     0.500\r\n";
    };
    const auto shown = [&] {
        std::string texts;
        for (int id = IDC_TXT_SYSTEM; id <= IDC_TXT_SAVE_TO_AS_START; ++id)
            texts += Text(id) + "|";
        for (int i = 0; i < 4; ++i)
            texts += Text(IDC_TXT_MARGIN + i) + "," + std::to_string(Slider(i)) + "|";
        return texts;
    };
    const std::string rest =
        "|Restore Defaults|11.000|8.500|Portrait|54|220|10||0.5,500|0.5,500|0.5,500|0.5,500|";
    treeTag = "  " + treeTag + " ";
    Open([&] {
        EXPECT_EQ(ReadFileBytes(Path()), file(key));
        EXPECT_EQ(shown(), std::string("WA|") + key + "|Core\\Help\\" + key + rest);
        SetText(IDC_TXT_HEIGHT, "1");
        SetText(IDC_TXT_MARGIN, "abc");
        Press(IDC_COMMAND2);
        EXPECT_EQ(shown(), "WA|" + Path() + "|Core\\Help\\" + Path() + rest);
    });
    EXPECT_EQ(ReadFileBytes(Path()), file(Path()));
    RegDeleteTreeA(HKEY_LOCAL_MACHINE, registryKey);
}

TEST_F(Properties, PagesAreShownByTheirTabsAndReachedByTheKeyboardInFrontOnly) {
    const std::vector<std::vector<int>> tabOrders{
        {IDC_TXT_SYSTEM, IDC_TXT_PROGRAM_NAME, IDC_TXT_HELP_FILE, IDC_COMMAND2},
        {IDC_TXT_HEIGHT, IDC_TXT_WIDTH, IDC_CMB_ORIENTATION, IDC_TXT_LINES, IDC_TXT_COLUMNS,
         IDC_TXT_FONT_SIZE, IDC_TXT_SAVE_TO_AS_START},
        {IDC_TXT_MARGIN, IDC_SLD_MARGIN, IDC_TXT_MARGIN + 1, IDC_SLD_MARGIN + 1, IDC_TXT_MARGIN + 2,
         IDC_SLD_MARGIN + 2, IDC_TXT_MARGIN + 3, IDC_SLD_MARGIN + 3}};
    Open([&] {
        const auto pages = Pages();
        for (const auto& [tab, visible] : {std::pair<std::size_t, const char*>{0, "vvv"},
                                           {1, "-vv"},
                                           {0, "v-v"},
                                           {2, "--v"},
                                           {2, "--v"},
                                           {1, "-v-"}}) {
            SelectTab(static_cast<int>(tab));
            std::string shown;
            for (const HWND page : pages)
                shown += IsWindowVisible(page) ? 'v' : '-';
            EXPECT_EQ(shown, visible);
            EXPECT_EQ(GetWindow(dialog, GW_CHILD), pages[tab]) << "in front";

            std::vector<int> order = tabOrders[tab], reached;
            order.insert(order.end(), {IDOK, IDCANCEL, IDC_APPLY, IDC_TABSTRIP1});
            HWND item = Item(IDC_TABSTRIP1);
            while (reached.size() < order.size()) {
                item = GetNextDlgTabItem(dialog, item, FALSE);
                if (GetParent(item) == Item(IDC_CMB_ORIENTATION))
                    item = GetParent(item); // the box in the editable combo
                reached.push_back(GetDlgCtrlID(item));
            }
            EXPECT_EQ(reached, order);
        }
        // The tab strip can select a tab without taking the keyboard.
        SetFocus(Item(IDC_TXT_HEIGHT));
        const HWND tabs = Item(IDC_TABSTRIP1);
        SendMessageA(tabs, TCM_SETCURSEL, 0, 0);
        NMHDR selected{tabs, IDC_TABSTRIP1, static_cast<UINT>(TCN_SELCHANGE)};
        SendMessageA(dialog, WM_NOTIFY, IDC_TABSTRIP1, reinterpret_cast<LPARAM>(&selected));
        EXPECT_EQ(GetFocus(), tabs);
    });
}

TEST_F(Properties, PagesCoverTheTabStripsInsideAndHoldTheirControls) {
    Open([&] {
        RECT inner, place, common;
        GetWindowRect(Item(IDC_TABSTRIP1), &inner);
        SendMessageA(Item(IDC_TABSTRIP1), TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&inner));
        for (const HWND page : Pages()) {
            GetWindowRect(page, &place);
            EXPECT_TRUE(EqualRect(&place, &inner));
            for (HWND child = GetWindow(page, GW_CHILD); child != nullptr;
                 child = GetWindow(child, GW_HWNDNEXT)) {
                GetWindowRect(child, &place);
                IntersectRect(&common, &place, &inner);
                EXPECT_TRUE(EqualRect(&common, &place)) << WindowText(child);
            }
        }
    });
}

// What the screen shows of a window, as pixels.
std::vector<COLORREF> Picture(HWND window) {
    RECT place;
    GetWindowRect(window, &place);
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    BITMAPINFO format{};
    format.bmiHeader = {sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    const HDC screen = GetDC(nullptr);
    const UniqueDc copy(CreateCompatibleDC(screen));
    void* bits = nullptr;
    const UniqueBitmap bitmap(CreateDIBSection(screen, &format, DIB_RGB_COLORS, &bits, nullptr, 0));
    const HGDIOBJ before = SelectObject(copy.get(), bitmap.get());
    BitBlt(copy.get(), 0, 0, width, height, screen, place.left, place.top, SRCCOPY);
    GdiFlush();
    const auto* first = static_cast<const COLORREF*>(bits);
    std::vector<COLORREF> pixels(first, first + static_cast<std::ptrdiff_t>(width) * height);
    SelectObject(copy.get(), before);
    ReleaseDC(nullptr, screen);
    return pixels;
}

TEST_F(Properties, PagesBehindDoNotPaintOverTheFirst) {
    Open([&] {
        const auto paint = [](HWND window) {
            RedrawWindow(window, nullptr, nullptr,
                         RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        };
        paint(Pages()[0]);
        const auto before = Picture(Pages()[0]);
        ASSERT_GT(std::ranges::count_if(before, [&](COLORREF c) { return c != before[0]; }), 100);
        for (const HWND behind : {Item(IDC_TABSTRIP1), Pages()[1], Pages()[2]}) {
            paint(behind);
            EXPECT_TRUE(Picture(Pages()[0]) == before) << GetDlgCtrlID(behind);
        }
    });
}

TEST_F(Properties, OpensALargeFileAtOnce) {
    const std::string large(10'000'000, 'x');
    WriteSettings("Lines=7\r\nOrientation=" + large + "\r\nHelpFile=" + large + "\r\n");
    const ULONGLONG start = GetTickCount64();
    Open([&] {
        EXPECT_EQ(Text(IDC_TXT_LINES), "7");
        EXPECT_EQ(Text(IDC_TXT_HELP_FILE), large.substr(0, 32767)) << "as much as can be typed";
    });
    EXPECT_LT(GetTickCount64() - start, 5000U);
}

TEST_F(Properties, ApplySavesAndStaysOkSavesAndCloses) {
    Open([&] {
        SetText(IDC_TXT_HEIGHT, "  12.000 ");
        SetText(IDC_TXT_PROGRAM_NAME, "edited");
        SetText(IDC_TXT_HELP_FILE, "a=b");
        SetText(IDC_CMB_ORIENTATION, "Sideways");
        SetText(IDC_TXT_MARGIN + 2, "1");
        Press(IDC_APPLY);
        EXPECT_TRUE(IsWindow(dialog));
        EXPECT_TRUE(ReadFileBytes(Path()).starts_with("Program           =     Core\\Programs\\CSBackup\r\n"
                                                      "HelpFile          =     a=b\r\n"));
        EXPECT_EQ(Saved("Height"), "12.000");
        EXPECT_EQ(Saved("TopMargin"), "0.5");
        // The file stays the one of the opening, the name in it is the tree's.
        treeTag = " Core\\Other ";
        Press(IDOK);
    });
    EXPECT_EQ(Saved("Program"), "Core\\Other");
    EXPECT_FALSE(FileExists(SettingsPath("Core\\Other")));
    treeTag = key;
    Open([&] {
        EXPECT_EQ(Text(IDC_TXT_PROGRAM_NAME), "Core\\Other");
        EXPECT_EQ(Text(IDC_TXT_HELP_FILE), "a") << "cut at the second =";
        EXPECT_EQ(Text(IDC_CMB_ORIENTATION), "Sideways");
        EXPECT_EQ(Text(IDC_TXT_MARGIN + 2), "1");
        SetText(IDC_TXT_LINES, "60");
        Press(IDCANCEL);
    });
    EXPECT_EQ(Saved("Lines"), "54");
}

TEST_F(Properties, EnterIsOkAndEscapeIsCancel) {
    for (const auto& [virtualKey, lines] : {std::pair{VK_ESCAPE, "54"}, {VK_RETURN, "1"}}) {
        Open([&] {
            SetText(IDC_TXT_LINES, "1");
            SetFocus(Item(IDC_TXT_PROGRAM_NAME));
            MSG message{Item(IDC_TXT_PROGRAM_NAME), WM_KEYDOWN, static_cast<WPARAM>(virtualKey), 1, 0, {}};
            IsDialogMessageA(dialog, &message);
        });
        EXPECT_EQ(Saved("Lines"), lines);
    }
}

TEST_F(Properties, OrientationSwapsWhatDiffersFromTheOpenedList) {
    Open([&] {
        EXPECT_EQ(Size(), "11.000 x 8.500") << "loading is no click";
        SelectTab(1);
        DropDown(true);
        ArrowInOrientation(VK_DOWN);
        EXPECT_EQ(Size(), "8.500 x 11.000") << "Landscape is not Portrait";
        ArrowInOrientation(VK_UP);
        EXPECT_EQ(Size(), "8.500 x 11.000") << "Portrait is what the list was opened on";
        ArrowInOrientation(VK_DOWN);
        EXPECT_EQ(Size(), "11.000 x 8.500") << "the click itself remembers nothing";
        DropDown(false);
        EXPECT_EQ(Text(IDC_CMB_ORIENTATION), "Landscape");
        DropDown(true);
        ArrowInOrientation(VK_UP);
        EXPECT_EQ(Size(), "8.500 x 11.000");
        DropDown(false);
    });
}

TEST_F(Properties, OrientationByKeyboardSwapsBeforeTheListWasEverOpened) {
    Open([&] {
        SelectTab(1);
        SetFocus(Item(IDC_CMB_ORIENTATION));
        ArrowInOrientation(VK_DOWN);
        EXPECT_EQ(Text(IDC_CMB_ORIENTATION), "Landscape") << "the arrows go on from what was loaded";
        EXPECT_EQ(Size(), "8.500 x 11.000");
        ArrowInOrientation(VK_UP);
        EXPECT_EQ(Size(), "11.000 x 8.500");
    });
}

class Margins : public Properties {
protected:
    // Box and caret after each key, typed into the box with all its text selected.
    std::vector<std::string> Keys(const std::string& characters) const {
        const HWND box = Item(IDC_TXT_MARGIN);
        SendMessageA(box, EM_SETSEL, 0, -1);
        std::vector<std::string> states;
        for (const char character : characters) {
            SendMessageA(box, WM_CHAR, static_cast<WPARAM>(character), 0);
            DWORD caret = 0;
            SendMessageA(box, EM_GETSEL, 0, reinterpret_cast<LPARAM>(&caret));
            states.push_back(Text(IDC_TXT_MARGIN).insert(caret, "|"));
        }
        return states;
    }
    void Leave() const {
        SetFocus(Item(IDC_TXT_MARGIN));
        SetFocus(Item(IDC_SLD_MARGIN));
    }
    // The text of a margin: in its box, and as the tip of its slider.
    std::string BoxAndTip(int index) const {
        HWND tips = nullptr;
        do
            tips = FindWindowExA(nullptr, tips, TOOLTIPS_CLASSA, nullptr);
        while (tips != nullptr && GetWindow(tips, GW_OWNER) != dialog);
        char text[80] = "";
        TOOLINFOA tip{};
        tip.cbSize = sizeof tip;
        tip.hwnd = dialog;
        tip.uId = reinterpret_cast<UINT_PTR>(Item(IDC_SLD_MARGIN + index));
        tip.lpszText = text;
        SendMessageA(tips, TTM_GETTEXTA, 0, reinterpret_cast<LPARAM>(&tip));
        return Text(IDC_TXT_MARGIN + index) + " " + text;
    }
};

using States = std::vector<std::string>;

TEST_F(Margins, AreTypedKeyByKey) {
    Open([&] {
        SelectTab(2);
        EXPECT_EQ(Keys("1.25"), (States{"1|", "1.|", "1.2|", "1.25|"}));
        EXPECT_EQ(Slider(0), 1250);
        EXPECT_TRUE(SendMessageA(Item(IDC_TXT_MARGIN), EM_CANUNDO, 0, 0));
        EXPECT_EQ(Keys("0.500"), (States{"0|", "0.|", "0.5|", "0.50|", "0.500|"}));
        EXPECT_EQ(Slider(0), 500);
        EXPECT_EQ(Keys("2.05"), (States{"2|", "2.|", "2.0|", "2.05|"}));
        EXPECT_EQ(Keys(".75"), (States{".|", "0.7|", "0.75|"}));
        EXPECT_EQ(Slider(0), 750);
        EXPECT_EQ(Keys("01.5"), (States{"0|", "1|", "1.|", "1.5|"}));
        EXPECT_EQ(Keys("7.5"), (States{"4|", "4.|", "4.5|"})) << "the slider ends at 4";
        EXPECT_EQ(Slider(0), 4000);
        EXPECT_EQ(Slider(1), 500) << "the others stay";
    });
}

TEST_F(Margins, StayAsTypedUnlessTheSliderHasExactlyTheirValue) {
    Open([&] {
        SelectTab(2);
        for (const auto& [typed, left] : {std::pair{"1.000", "1"},
                                          {"01.250", "1.25"},
                                          {"1.2501", "1.2501"},
                                          {"0.500", "0.5"},
                                          {"0.1", "0.1"},
                                          {"", ""},
                                          {"x1", "x1"}}) {
            SetText(IDC_TXT_MARGIN, "");
            Keys(typed);
            SetFocus(Item(IDC_TXT_MARGIN));
            SetFocus(Item(IDC_SLD_MARGIN));
            EXPECT_EQ(Text(IDC_TXT_MARGIN), left);
        }
        EXPECT_EQ(Slider(0), 500) << "a text below the smallest margin leaves it";
        Press(IDC_APPLY);
        EXPECT_EQ(Saved("TopMargin"), "0.5") << "the slider's value, not the text";
    });
}

TEST_F(Margins, FollowTheSlider) {
    Open([&] {
        SelectTab(2);
        const HWND slider = Item(IDC_SLD_MARGIN + 3);
        for (const auto& [virtualKey, texts] : {std::pair{VK_RIGHT, "0.51 0.51"},
                                                {VK_NEXT, "0.76 0.76"},
                                                {VK_END, "4 4"},
                                                {VK_HOME, "0.25 0.25"}}) {
            SendMessageA(slider, WM_KEYDOWN, static_cast<WPARAM>(virtualKey), 0);
            EXPECT_EQ(BoxAndTip(3), texts);
        }
        SetText(IDC_TXT_MARGIN + 3, "0.5");
        EXPECT_EQ(BoxAndTip(3), "0.5 0.5");

        RECT thumb;
        SendMessageA(slider, TBM_GETTHUMBRECT, 0, reinterpret_cast<LPARAM>(&thumb));
        const LPARAM grip = MAKELPARAM((thumb.left + thumb.right) / 2, (thumb.top + thumb.bottom) / 2);
        SendMessageA(slider, WM_LBUTTONDOWN, MK_LBUTTON, grip);
        SendMessageA(slider, WM_MOUSEMOVE, MK_LBUTTON, grip + 60);
        const std::string dragged = ShortestThousandths(static_cast<int>(Slider(3)));
        EXPECT_NE(dragged, "0.5");
        EXPECT_EQ(BoxAndTip(3), dragged + " " + dragged);
        SendMessageA(slider, WM_LBUTTONUP, 0, grip + 60);
        Press(IDC_APPLY);
        EXPECT_EQ(Saved("RightMargin"), dragged);
    });
}

TEST_F(Margins, AreLoadedWithinTheSlidersRange) {
    WriteSettings("TopMargin=0.25\r\nBottomMargin=99\r\nLeftMargin=none\r\nRightMargin=1.2345 in\r\n");
    Open([&] {
        EXPECT_EQ(BoxAndTip(0) + BoxAndTip(1) + BoxAndTip(2) + BoxAndTip(3),
                  "0.25 0.254 40.25 0.251.235 1.235");
    });
}

} // namespace
} // namespace obrin
