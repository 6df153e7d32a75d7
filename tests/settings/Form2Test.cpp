#include "settings/Form2.h"

#include "controls/WindowText.h"
#include "settings/SettingsStore.h"
#include "support/ModalTest.h"
#include "support/TopWindow.h"

namespace obrin {
namespace {

constexpr const char* key = "Core\\Programs\\CSBackup";

class Properties : public test::ModalTest {
protected:
    Properties() { SetEnvironmentVariableA("TesselTemp", folder.path.string().c_str()); }

    // Opens the dialog on a page, plays, and cancels it if it is still open.
    void Open(int page, const std::function<void()>& play) {
        While([this] { Form2(corvel, treeTag).Show(owner); },
              [&](HWND opened) {
                  dialog = opened;
                  SelectTab(page);
                  play();
                  Press(IDCANCEL);
              });
    }

    HWND Item(int id) const {
        HWND item = GetDlgItem(dialog, id);
        for (HWND page = GetWindow(dialog, GW_CHILD); item == nullptr; page = GetWindow(page, GW_HWNDNEXT))
            item = GetDlgItem(page, id);
        return item;
    }
    LRESULT Send(int id, UINT message, int wParam = 0, LPARAM lParam = 0) const {
        return SendMessageA(Item(id), message, static_cast<WPARAM>(wParam), lParam);
    }
    std::string Text(int id) const { return WindowText(Item(id)); }
    void SetText(int id, const char* text) const { SetWindowTextA(Item(id), text); }
    void Press(int button) const {
        Send(button, BM_CLICK);
        EXPECT_EQ(IsWindowVisible(dialog) != FALSE, button == IDC_APPLY || button == IDC_COMMAND2);
    }
    void SelectTab(int index) const { Send(IDC_TABSTRIP1, TCM_SETCURFOCUS, index); }
    // Box and slider of a margin.
    std::string Margin(int index) const {
        return Text(IDC_TXT_MARGIN + index) + " " + std::to_string(Send(IDC_SLD_MARGIN + index, TBM_GETPOS));
    }

    std::string Path() const { return SettingsPath(key); }
    bool Saved(const std::string& line) const {
        return ReadFileBytes(Path()).find(line + "\r\n") != std::string::npos;
    }

    test::ScratchFolder folder;
    test::LocalMachine machine;
    SupportLibrary corvel;
    std::string treeTag = key;
    HWND dialog = nullptr;
};

TEST_F(Properties, FirstOpeningWritesAndShowsTheDefaultsAndRestoringNamesTheFileItself) {
    machine.Set("Software\\Obrin\\Menu", "LastSystem", REG_SZ, "WA.mnu");
    const auto file = [](const std::string& name) {
        return "Program           =     " + name + "\r\nHelpFile          =     Core\\Help\\" + name +
               "\r\nSaveToAsStart     =     \r\nOrientation       =     Portrait\r\n"
               "Height            =     11.000\r\nWidth             =     8.500\r\n"
               "Lines             =     54\r\nColumns           =     220\r\nFontSize          =     10\r\n"
               "TopMargin         =     0.500\r\nBottomMargin      =     0.500\r\n"
               "LeftMargin        =     0.500\r\nRightMargin       =     0.500\r\n";
    };
    const auto isShown = [&](const std::string& name) {
        std::string texts;
        for (int id = IDC_TXT_SYSTEM; id <= IDC_TXT_SAVE_TO_AS_START; ++id)
            texts += Text(id) + "|";
        EXPECT_EQ(texts, "WA|" + name + "|Core\\Help\\" + name +
                             "|Restore Defaults|11.000|8.500|Portrait|54|220|10||");
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(Margin(i), "0.5 500");
    };
    treeTag = "  " + treeTag + " ";
    EXPECT_EQ(Path(), folder.path.string() + "\\Ini\\" + key + ".ini");
    Open(0, [&] {
        EXPECT_EQ(ReadFileBytes(Path()), file(key));
        isShown(key);
        SetText(IDC_TXT_HEIGHT, "1");
        SetText(IDC_TXT_MARGIN, "abc");
        Press(IDC_COMMAND2);
        isShown(Path());
    });
    EXPECT_EQ(ReadFileBytes(Path()), file(Path()));
}

TEST_F(Properties, PagesAreShownByTheirTabsAndReachedByTheKeyboardInFrontOnly) {
    const int firsts[] = {IDC_TXT_SYSTEM, IDC_TXT_HEIGHT, IDC_TXT_MARGIN};
    const int lasts[] = {IDC_COMMAND2, IDC_TXT_SAVE_TO_AS_START, IDC_SLD_MARGIN + 3};
    Open(0, [&] {
        const HWND tabs = Item(IDC_TABSTRIP1);
        EXPECT_EQ(GetFocus(), tabs);
        const HWND pages[] = {GetParent(Item(IDC_TXT_SYSTEM)), GetParent(Item(IDC_TXT_HEIGHT)),
                              GetParent(Item(IDC_TXT_MARGIN))};
        const std::pair<int, const char*> steps[] = {{0, "vvv"}, {1, "-vv"}, {0, "v-v"},
                                                     {2, "--v"}, {2, "--v"}, {1, "-v-"}};
        for (int before = 0; const auto& [tab, visible] : steps) {
            const HWND inPage = Item(firsts[before]);
            SetFocus(inPage);
            SelectTab(tab);
            SendMessageA(dialog, WM_SETTINGCHANGE, 0, 0); // laid out anew
            EXPECT_EQ(GetFocus(), tab == before ? inPage : tabs) << "never in a hidden page";
            before = tab;
            std::string shown;
            for (const HWND page : pages) {
                shown += IsWindowVisible(page) ? 'v' : '-';
            }
            EXPECT_EQ(shown, visible);
            RECT strip, page;
            GetWindowRect(tabs, &strip);
            GetWindowRect(pages[tab], &page);
            SendMessageA(tabs, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&strip));
            EXPECT_TRUE(EqualRect(&strip, &page)) << "under the tabs";
            EXPECT_EQ(GetWindow(dialog, GW_CHILD), pages[tab]) << "in front";
            EXPECT_EQ(GetNextDlgTabItem(dialog, tabs, FALSE), Item(firsts[tab]));
            EXPECT_EQ(GetNextDlgTabItem(dialog, Item(lasts[tab]), FALSE), Item(IDOK));
            EXPECT_EQ(GetNextDlgTabItem(dialog, Item(IDC_APPLY), FALSE), tabs);
        }
    });
}

TEST_F(Properties, OpensADamagedFileAtOnceWithinTheLimitsOfItsControls) {
    WriteDefaultSettings(Path(), key);
    const std::string large(10'000'000, 'x');
    WriteFileBytes(Path(), "Orientation=" + large + "\r\nHelpFile=" + large +
                               "\r\nBottomMargin=99\r\nLeftMargin=none\r\nRightMargin=1.2345 in\r\n");
    const ULONGLONG start = GetTickCount64();
    Open(0, [&] {
        EXPECT_EQ(Text(IDC_TXT_HELP_FILE), large.substr(0, 32767)) << "as much as can be typed";
        SetText(IDC_CMB_ORIENTATION, "edited");
        Press(IDC_APPLY);
        EXPECT_TRUE(Saved("HelpFile          =     " + large)) << "as it was loaded";
        EXPECT_TRUE(Saved("Orientation       =     edited"));
        EXPECT_EQ(Margin(0) + "|" + Margin(1) + "|" + Margin(2) + "|" + Margin(3),
                  "0.25 250|4 4000|0.25 250|1.235 1235");
    });
    EXPECT_LT(GetTickCount64() - start, 20'000U) << "laid out whole, half a minute on a machine at rest";
}

TEST_F(Properties, ApplySavesAndStaysOkSavesAndCloses) {
    Open(0, [&] {
        SetText(IDC_TXT_SAVE_TO_AS_START, "  12.000 ");
        SetText(IDC_TXT_PROGRAM_NAME, "edited");
        SetText(IDC_CMB_ORIENTATION, "Sideways");
        SetText(IDC_TXT_MARGIN + 2, "1");
        Press(IDC_APPLY);
        EXPECT_TRUE(Saved(std::string("Program           =     ") + key));
        EXPECT_TRUE(Saved("SaveToAsStart     =     12.000"));
        // The file stays the one of the opening, the name in it is the tree's.
        treeTag = " Core\\Other ";
        Press(IDOK);
    });
    EXPECT_TRUE(Saved("Program           =     Core\\Other"));
    treeTag = key;
    Open(0, [&] {
        EXPECT_EQ(Text(IDC_TXT_PROGRAM_NAME), "Core\\Other");
        EXPECT_EQ(Text(IDC_CMB_ORIENTATION), "Sideways");
        EXPECT_EQ(Margin(2), "1 1000");
        SetText(IDC_TXT_LINES, "60");
    });
    EXPECT_TRUE(Saved("Lines             =     54")) << "cancelled";
}

TEST_F(Properties, OrientationSwapsWhatDiffersFromTheOpenedList) {
    Open(1, [&] {
        const HWND box = GetWindow(Item(IDC_CMB_ORIENTATION), GW_CHILD);
        const auto sizeAfter = [&](WPARAM arrow) {
            SendMessageA(box, WM_KEYDOWN, arrow, 0);
            return Text(IDC_TXT_HEIGHT) + " x " + Text(IDC_TXT_WIDTH);
        };
        EXPECT_EQ(sizeAfter(VK_DOWN), "8.500 x 11.000") << "before the list was ever opened";
        EXPECT_EQ(Text(IDC_CMB_ORIENTATION), "Landscape") << "the arrows go on from what was loaded";
        EXPECT_EQ(sizeAfter(VK_UP), "11.000 x 8.500");
        Send(IDC_CMB_ORIENTATION, CB_SHOWDROPDOWN, TRUE);
        EXPECT_EQ(sizeAfter(VK_DOWN), "8.500 x 11.000") << "Landscape is not Portrait";
        EXPECT_EQ(sizeAfter(VK_UP), "8.500 x 11.000") << "Portrait is what the list was opened on";
        EXPECT_EQ(sizeAfter(VK_DOWN), "11.000 x 8.500") << "the click itself remembers nothing";
        Send(IDC_CMB_ORIENTATION, CB_SHOWDROPDOWN, FALSE);
    });
}

TEST_F(Properties, MarginsAreTypedKeyByKeyAndStayUnlessTheSliderHasTheirValue) {
    struct {
        // Box and caret after each key, and the box when the keyboard has gone on.
        std::string typed, states, left;
        int slider;
    } const cases[] = {
        {"0.500", "0| 0.| 0.5| 0.50| 0.500| ", "0.5", 500},
        {".75", ".| 0.7| 0.75| ", "0.75", 750},
        {"01.5", "0| 1| 1.| 1.5| ", "1.5", 1500},
        {"7.5", "4| 4.| 4.5| ", "4", 4000},
        {"0.25", "0| 0.| 0.2| 0.25| ", "0.25", 250},
        {"2.0501", "2| 2.| 2.0| 2.05| 2.050| 2.0501| ", "2.0501", 2050},
        {"0.1", "0| 0.| 0.1| ", "0.1", 2050}, // below the smallest margin
    };
    Open(2, [&] {
        for (const auto& [typed, states, left, slider] : cases) {
            SetText(IDC_TXT_MARGIN, "");
            SetFocus(Item(IDC_TXT_MARGIN));
            UpdateWindow(Item(IDC_SLD_MARGIN));
            const LRESULT before = Send(IDC_SLD_MARGIN, TBM_GETPOS);
            std::string shown;
            for (const char character : typed) {
                DWORD caret = 0;
                Send(IDC_TXT_MARGIN, WM_CHAR, character);
                Send(IDC_TXT_MARGIN, EM_GETSEL, 0, reinterpret_cast<LPARAM>(&caret));
                shown += Text(IDC_TXT_MARGIN).insert(caret, "|") + " ";
            }
            EXPECT_EQ(shown, states);
            EXPECT_EQ(GetUpdateRect(Item(IDC_SLD_MARGIN), nullptr, FALSE) != FALSE,
                      Send(IDC_SLD_MARGIN, TBM_GETPOS) != before);
            SendMessageA(dialog, WM_HSCROLL, TB_ENDTRACK, reinterpret_cast<LPARAM>(Item(IDC_SLD_MARGIN)));
            SetFocus(Item(IDC_SLD_MARGIN));
            EXPECT_EQ(Text(IDC_TXT_MARGIN), left);
            EXPECT_EQ(Send(IDC_SLD_MARGIN, TBM_GETPOS), slider) << typed;
        }
        EXPECT_EQ(Send(IDC_SLD_MARGIN, TBM_GETNUMTICS), 16) << "a quarter of an inch apart";
        Press(IDC_APPLY);
        EXPECT_TRUE(Saved("TopMargin         =     2.05")) << "the slider's value, not the text";
        EXPECT_EQ(Margin(1), "0.5 500") << "the others stay";
    });
}

TEST_F(Properties, SliderShowsItsValueInItsTip) {
    Open(2, [&] {
        const HWND tips = test::FindTopWindow([&](HWND window) {
            char className[40] = "";
            GetClassNameA(window, className, sizeof className);
            return className == std::string(TOOLTIPS_CLASSA) && GetWindow(window, GW_OWNER) == dialog;
        });
        char told[80] = "";
        TOOLINFOA tip{sizeof tip, 0,       dialog, reinterpret_cast<UINT_PTR>(Item(IDC_SLD_MARGIN + 3)),
                      {},         nullptr, told,   0,
                      nullptr};
        Send(IDC_SLD_MARGIN + 3, WM_KEYDOWN, VK_RIGHT);
        EXPECT_EQ(Margin(3), "0.51 510");
        Send(IDC_SLD_MARGIN + 3, WM_KEYDOWN, VK_NEXT);
        EXPECT_EQ(Margin(3), "0.76 760");
        SendMessageA(tips, TTM_GETTOOLINFOA, 0, reinterpret_cast<LPARAM>(&tip));
        EXPECT_TRUE(tip.uFlags & TTF_SUBCLASS) << "comes by itself";
        EXPECT_STREQ(told, "0.76") << "where the pointer rests on the slider";
    });
}

} // namespace
} // namespace obrin
