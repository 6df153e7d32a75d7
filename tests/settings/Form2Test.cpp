// The Properties dialog: what it shows and saves, its pages, and how boxes and sliders follow each other.

#include "controls/WindowTest.h"
#include "settings/SettingsStore.h"

namespace obrin {
namespace {

struct ClosedProperties : test::WindowTest {
    ~ClosedProperties() override { DestroyWindow(dialog); }

    /// Opens the dialog modeless, so that the test can go on. EndDialog then only hides the dialog.
    void Open() {
        DestroyWindow(dialog);
        form.emplace(corvel, programKey).ShowModeless(owner, IDD_PROPERTIES);
        dialog = DialogOver(owner);
    }

    HWND Control(int id) const { return test::ControlOf(dialog, id); }
    LRESULT Send(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageA(Control(id), message, wParam, lParam);
    }
    std::string Text(int id) const { return WindowText(Control(id)); }
    void SetText(int id, const char* text) const { SetWindowTextA(Control(id), text); }
    void Press(int button) const { Send(button, BM_CLICK); }
    void SelectTab(WPARAM index) const { Send(IDC_TABSTRIP1, TCM_SETCURFOCUS, index); }
    bool IsOpen() const { return IsWindowVisible(dialog) != FALSE; }
    bool FileHas(const std::string& line) const {
        return ReadFileBytes(path).find(line + "\r\n") != std::string::npos;
    }

    std::string programKey = "Core\\Programs\\CSBackup"; // of the program in the tree
    const std::string path = folder.path.string() + "\\Ini\\Core\\Programs\\CSBackup.ini";
    std::optional<Form2> form;
    HWND dialog = nullptr;
};

struct Properties : ClosedProperties {
    Properties() { Open(); }
};

// --- Opening ---

TEST_F(Properties, FirstOpeningShowsAndSavesTheDefaults) {
    const std::pair<int, const char*> shown[] = {
        {IDC_TXT_PROGRAM_NAME, "Core\\Programs\\CSBackup"},
        {IDC_TXT_HELP_FILE, "Core\\Help\\Core\\Programs\\CSBackup"},
        {IDC_TXT_HEIGHT, "11.000"},
        {IDC_TXT_WIDTH, "8.500"},
        {IDC_CMB_ORIENTATION, "Portrait"},
        {IDC_TXT_LINES, "54"},
        {IDC_TXT_COLUMNS, "220"},
        {IDC_TXT_FONT_SIZE, "10"},
        {IDC_TXT_SAVE_TO_AS_START, ""},
        {IDC_TXT_MARGIN, "0.5"},
        {IDC_TXT_MARGIN + 1, "0.5"},
        {IDC_TXT_MARGIN + 2, "0.5"},
        {IDC_TXT_MARGIN + 3, "0.5"},
    };
    for (const auto& [box, text] : shown)
        EXPECT_EQ(Text(box), text) << "control " << box;
    EXPECT_TRUE(FileHas("RightMargin       =     0.500"));
}

TEST_F(ClosedProperties, ShowTheCodeOfTheLastSystemReadOnly) {
    machine.Set("Software\\Obrin\\Menu", "LastSystem", REG_SZ, "WA.mnu");
    Open();
    EXPECT_EQ(Text(IDC_TXT_SYSTEM), "WA");
    EXPECT_TRUE(test::HasStyle(Control(IDC_TXT_SYSTEM), ES_READONLY));
}

// A box would need half a minute to show the whole value.
TEST_F(ClosedProperties, ShowAsMuchOfAValueAsCanBeTypedAndKeepTheRest) {
    const std::string large(10'000'000, 'x');
    WriteDefaultSettings(path, "");
    WriteFileBytes(path, "HelpFile=" + large + "\r\n");
    Open();
    EXPECT_EQ(Text(IDC_TXT_HELP_FILE).size(), 32767U);
    Press(IDC_APPLY);
    EXPECT_TRUE(FileHas("HelpFile          =     " + large)) << "not edited, so saved as it was loaded";
}

// --- Buttons ---

TEST_F(Properties, ApplySavesCancelClosesOkDoesBoth) {
    struct {
        int button;
        bool saves, closes;
    } const cases[] = {{IDC_APPLY, true, false}, {IDOK, true, true}, {IDCANCEL, false, true}};
    for (const auto& [button, saves, closes] : cases) {
        WriteDefaultSettings(path, "");
        Open();
        SetText(IDC_TXT_LINES, "  60 ");
        SetText(IDC_CMB_ORIENTATION, "Sideways");
        Press(button);
        EXPECT_EQ(FileHas("Lines             =     60"), saves) << button;
        EXPECT_EQ(FileHas("Orientation       =     Sideways"), saves) << button;
        EXPECT_NE(IsOpen(), closes) << button;
    }
}

TEST_F(Properties, ProgramOfTheTreeIsSavedNotTheTextOfTheBox) {
    SetText(IDC_TXT_PROGRAM_NAME, "edited");
    programKey = "Core\\Other";
    Press(IDC_APPLY);
    EXPECT_TRUE(FileHas("Program           =     Core\\Other")) << "in the file that was opened";
}

TEST_F(Properties, RestoreDefaultsUsesThePathOfTheFileAsProgramName) {
    SetText(IDC_TXT_HEIGHT, "1");
    SetText(IDC_TXT_MARGIN, "abc");
    Press(IDC_COMMAND2);
    EXPECT_TRUE(FileHas("Program           =     " + path));
    EXPECT_EQ(Text(IDC_TXT_PROGRAM_NAME), path);
    EXPECT_EQ(Text(IDC_TXT_HELP_FILE), "Core\\Help\\" + path);
    EXPECT_EQ(Text(IDC_TXT_HEIGHT), "11.000");
    EXPECT_EQ(Text(IDC_TXT_MARGIN), "0.5");
}

// --- Pages ---

struct Pages : Properties {
    HWND Page(WPARAM tab) const {
        const int controls[] = {IDC_TXT_SYSTEM, IDC_TXT_HEIGHT, IDC_TXT_MARGIN};
        return GetParent(Control(controls[tab]));
    }
};

TEST_F(Pages, OpenOnTheFirstOneWithTheFocusOnTheTabs) {
    EXPECT_EQ(GetWindow(dialog, GW_CHILD), Page(0)) << "in front";
    EXPECT_EQ(GetFocus(), Control(IDC_TABSTRIP1));
}

TEST_F(Pages, TabBringsItsPageToTheFrontAndHidesTheOneBefore) {
    WPARAM before = 0;
    for (const WPARAM tab : {1U, 0U, 2U, 1U}) {
        SelectTab(tab);
        EXPECT_EQ(GetWindow(dialog, GW_CHILD), Page(tab)) << "in front";
        EXPECT_TRUE(IsWindowVisible(Page(tab)));
        EXPECT_FALSE(IsWindowVisible(Page(before)));
        before = tab;
    }
}

TEST_F(Pages, FocusMovesToTheTabsFromAPageThatIsHidden) {
    SetFocus(Control(IDC_TXT_HELP_FILE));
    SelectTab(1);
    EXPECT_EQ(GetFocus(), Control(IDC_TABSTRIP1));
}

TEST_F(Pages, FillTheTabStripsClientArea) {
    RECT inside;
    GetWindowRect(Control(IDC_TABSTRIP1), &inside);
    Send(IDC_TABSTRIP1, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&inside));
    for (const WPARAM tab : {0U, 1U, 2U}) {
        RECT page;
        GetWindowRect(Page(tab), &page);
        EXPECT_TRUE(EqualRect(&page, &inside)) << tab;
    }
}

// --- Orientation ---

struct Orientation : Properties {
    Orientation() { SelectTab(1); }
    void OpenList() const { Send(IDC_CMB_ORIENTATION, CB_SHOWDROPDOWN, TRUE); }
    void Press(int arrow) const {
        SendMessageA(GetWindow(Control(IDC_CMB_ORIENTATION), GW_CHILD), WM_KEYDOWN,
                     static_cast<WPARAM>(arrow), 0);
    }
    std::string Paper() const { return Text(IDC_TXT_HEIGHT) + " x " + Text(IDC_TXT_WIDTH); }
};

TEST_F(Orientation, SwapsHeightAndWidthUnlessItIsTheOneWhenTheListOpened) {
    OpenList();
    Press(VK_DOWN);
    EXPECT_EQ(Text(IDC_CMB_ORIENTATION), "Landscape");
    EXPECT_EQ(Paper(), "8.500 x 11.000");
    Press(VK_UP);
    EXPECT_EQ(Paper(), "8.500 x 11.000") << "Portrait again, as when the list was opened: no swap";
    Press(VK_DOWN);
    EXPECT_EQ(Paper(), "11.000 x 8.500") << "still compared with Portrait";
}

TEST_F(Orientation, SwapsHeightAndWidthAtEachChoiceUntilTheListIsOpened) {
    Press(VK_DOWN);
    EXPECT_EQ(Paper(), "8.500 x 11.000");
    Press(VK_UP);
    EXPECT_EQ(Paper(), "11.000 x 8.500");
}

// --- Margins ---

struct Margins : Properties {
    Margins() { SelectTab(2); }
    void Type(const char* text) const {
        SetText(IDC_TXT_MARGIN, "");
        SetFocus(Control(IDC_TXT_MARGIN));
        for (; *text != '\0'; ++text)
            Send(IDC_TXT_MARGIN, WM_CHAR, static_cast<WPARAM>(*text));
    }
    std::string Box() const { return Text(IDC_TXT_MARGIN); }
    LRESULT Slider() const { return Send(IDC_SLD_MARGIN, TBM_GETPOS); }
};

// When typing moves the slider, the dialog writes the slider's value into the box. When the focus leaves the
// box, the dialog does so only if the text is that number, or a number above the largest margin.
TEST_F(Margins, FollowEachTypedKey) {
    struct {
        const char* typed;
        const char* box;
        LRESULT slider;
        const char* boxWithoutFocus;
    } const cases[] = {
        {"0.25", "0.25", 250, "0.25"}, {"0.500", "0.500", 500, "0.5"},       {".75", "0.75", 750, "0.75"},
        {"01.5", "1.5", 1500, "1.5"},  {"2.0501", "2.0501", 2050, "2.0501"}, // finer than the slider
        {"7.5", "4.5", 4000, "4"},   // "7" moves the slider to its end, and the box to "4"
        {"0.1", "0.1", 4000, "0.1"}, // below the smallest margin: the slider stays
        {"abc", "abc", 4000, "abc"},
    };
    for (const auto& [typed, box, slider, boxWithoutFocus] : cases) {
        Type(typed);
        EXPECT_EQ(Box(), box) << typed;
        EXPECT_EQ(Slider(), slider) << typed;
        SetFocus(Control(IDC_SLD_MARGIN));
        EXPECT_EQ(Box(), boxWithoutFocus) << typed;
    }
}

TEST_F(Margins, TypingRepaintsTheSlider) {
    UpdateWindow(Control(IDC_SLD_MARGIN));
    Type("2");
    EXPECT_TRUE(GetUpdateRect(Control(IDC_SLD_MARGIN), nullptr, FALSE));
}

TEST_F(Margins, ValueOfTheSliderIsSavedNotTheText) {
    Type("0.1");
    Press(IDC_APPLY);
    EXPECT_TRUE(FileHas("TopMargin         =     0.5"));
}

TEST_F(Margins, KeysOfTheSliderChangeItsBox) {
    Send(IDC_SLD_MARGIN + 3, WM_KEYDOWN, VK_RIGHT);
    EXPECT_EQ(Text(IDC_TXT_MARGIN + 3), "0.51") << "a hundredth more";
    Send(IDC_SLD_MARGIN + 3, WM_KEYDOWN, VK_NEXT);
    EXPECT_EQ(Text(IDC_TXT_MARGIN + 3), "0.76") << "a quarter more";
}

TEST_F(Margins, EndOfASliderDragKeepsTheTypedText) {
    Type("0.50");
    SendMessageA(dialog, WM_HSCROLL, TB_ENDTRACK, reinterpret_cast<LPARAM>(Control(IDC_SLD_MARGIN)));
    EXPECT_EQ(Box(), "0.50");
}

TEST_F(Margins, SliderShowsItsValueInATooltip) {
    const HWND tips = test::FindTopWindow([this](HWND window) {
        return test::HasClass(window, TOOLTIPS_CLASSA) && GetWindow(window, GW_OWNER) == dialog;
    });
    std::array<char, 80> text{};
    TOOLINFOA tip{};
    tip.cbSize = sizeof tip;
    tip.hwnd = dialog;
    tip.uId = reinterpret_cast<UINT_PTR>(Control(IDC_SLD_MARGIN));
    tip.lpszText = text.data();
    Send(IDC_SLD_MARGIN, WM_KEYDOWN, VK_RIGHT);
    SendMessageA(tips, TTM_GETTOOLINFOA, 0, reinterpret_cast<LPARAM>(&tip));
    EXPECT_STREQ(text.data(), "0.51");
    EXPECT_TRUE(tip.uFlags & TTF_SUBCLASS) << "the tooltip must appear when the pointer rests on the slider";
}

} // namespace
} // namespace obrin
