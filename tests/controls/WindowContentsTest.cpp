// The fixed texts of the windows, letter for letter, and what the keyboard does first.

#include "controls/WindowTest.h"

namespace obrin::test {
namespace {

using W = WindowTest;
using Texts = std::vector<std::string>;

using WindowTexts = WindowTest;

TEST_F(WindowTexts, OfWindowsButtonsAndLabels) {
    constexpr int caption = 0;
    struct {
        WhileWindow whileOpen;
        int control;
        const char* text;
    } const cases[] = {
        {&W::WhileMenu, caption, "Obrin System Menu"},
        {&W::WhileMenu, IDC_COMMAND1, "&Run Program"},
        {&W::WhileMenu, IDC_LABEL4, "Got a better idea?"},
        {&W::WhileMenu, IDC_LABEL5, "E-Mail us!"},
        {&W::WhileGeneralPage, caption, "Properties"},
        {&W::WhileGeneralPage, IDOK, "OK"},
        {&W::WhileGeneralPage, IDCANCEL, "Cancel"},
        {&W::WhileGeneralPage, IDC_APPLY, "Apply"},
        {&W::WhileGeneralPage, IDC_COMMAND2, "Restore Defaults"},
        {&W::WhileAboutBox, caption, "Obrin Software Systems"},
        {&W::WhileAboutBox, IDC_LBL_TITLE, "Obrin Core System"},
        {&W::WhileAboutBox, IDC_LBL_VERSION, "Version " OBRIN_PROJECT_VERSION},
        {&W::WhileAboutBox, IDOK, "OK"},
        {&W::WhileAboutBox, IDC_CMD_SYS_INFO, "&System Info..."},
        {&W::WhileUpdateWindow, caption, "Auto Update Utility"},
        {&W::WhileUpdateWindow, IDC_LABEL2,
         "We have detect a workstation update is available. We are now updating your files."},
        {&W::WhileUpdateWindow, IDOK, "O&kay"},
    };
    for (const auto& [whileOpen, control, text] : cases) {
        (this->*whileOpen)([control = control, text = text](HWND window) {
            EXPECT_EQ(WindowText(control == caption ? window : ControlOf(window, control)), text);
        });
    }
}

TEST_F(WindowTexts, OfTheTabs) {
    WhileGeneralPage([](HWND dialog) {
        Texts tabs;
        std::array<char, 100> text;
        TCITEMA tab{TCIF_TEXT, 0, 0, text.data(), static_cast<int>(text.size()), 0, 0};
        while (SendDlgItemMessageA(dialog, IDC_TABSTRIP1, TCM_GETITEMA, tabs.size(),
                                   reinterpret_cast<LPARAM>(&tab)) != 0)
            tabs.emplace_back(text.data());
        EXPECT_EQ(tabs, (Texts{"General", "Page Settings", "Page Margins"}));
    });
}

TEST_F(WindowTexts, OfTheGroupBoxesOfEachPage) {
    const std::pair<WhileWindow, Texts> pages[] = {
        {&W::WhileGeneralPage, {"General Settings"}},
        {&W::WhileSettingsPage, {"Page Settings (Print Properties)", "Page:"}},
        {&W::WhileMarginsPage,
         {"Page Margins (Print Properties)", "Top Margin", "Bottom Margin", "Left Margin", "Right Margin"}},
    };
    for (const auto& [whileOpen, expected] : pages) {
        Texts captions;
        (this->*whileOpen)([&](HWND dialog) {
            for (const HWND control : ShownControls(dialog)) {
                if (IsGroupBox(control))
                    captions.push_back(WindowText(control));
            }
        });
        EXPECT_EQ(captions, expected);
    }
}

// A screen reader names a box by the label in front of it. The labels of the margins are hidden: there a
// person reads the captions of the group boxes.
TEST_F(WindowTexts, OfTheLabelsInFrontOfTheBoxes) {
    const std::pair<int, const char*> labels[] = {
        {IDC_TXT_SYSTEM, "System:"},         {IDC_TXT_PROGRAM_NAME, "Program Name:"},
        {IDC_TXT_HELP_FILE, "Help File:"},   {IDC_TXT_HEIGHT, "Height:"},
        {IDC_TXT_WIDTH, "Width:"},           {IDC_CMB_ORIENTATION, "Orientation:"},
        {IDC_TXT_LINES, "Lines:"},           {IDC_TXT_COLUMNS, "Columns:"},
        {IDC_TXT_FONT_SIZE, "Font Size:"},   {IDC_TXT_SAVE_TO_AS_START, "Save to as Start:"},
        {IDC_TXT_MARGIN, "Top Margin"},      {IDC_TXT_MARGIN + 1, "Bottom Margin"},
        {IDC_TXT_MARGIN + 2, "Left Margin"}, {IDC_TXT_MARGIN + 3, "Right Margin"},
    };
    WhileGeneralPage([&](HWND dialog) {
        for (const auto& [box, text] : labels) {
            const HWND label = GetWindow(ControlOf(dialog, box), GW_HWNDPREV);
            EXPECT_EQ(WindowText(label), text);
            EXPECT_NEAR(PlaceOf(label).top, PlaceOf(ControlOf(dialog, box)).top, 25) << text;
        }
    });
}

TEST_F(WindowTest, EnterPressesTheDefaultButton) {
    const std::pair<WhileWindow, const char*> cases[] = {{&W::WhileGeneralPage, "OK"},
                                                         {&W::WhileAboutBox, "OK"},
                                                         {&W::WhileUpdateWindow, "O&kay"},
                                                         {&W::WhileInputBox, "OK"},
                                                         {&W::WhileHostNotice, "Cancel"}};
    for (const auto& [whileOpen, button] : cases) {
        (this->*whileOpen)([text = button](HWND dialog) {
            const auto pressed = LOWORD(SendMessageA(dialog, DM_GETDEFID, 0, 0));
            EXPECT_EQ(WindowText(GetDlgItem(dialog, pressed)), text);
        });
    }
}

TEST_F(WindowTest, InputBoxCanBeAnsweredAtOnce) {
    WhileInputBox([](HWND box) { EXPECT_EQ(GetFocus(), ControlOf(box, IDC_ANSWER)); });
}

TEST_F(WindowTest, HostNoticeTakesTheKeyboardFromNobody) {
    WhileHostNotice([](HWND notice) { EXPECT_NE(GetActiveWindow(), notice); });
}

TEST_F(WindowTest, WindowsAheadOfTheMenuAreInTheTaskBar) {
    const WindowAction isInTaskBar = [](HWND window) {
        EXPECT_TRUE((GetWindowExStyle(window) & WS_EX_APPWINDOW) != 0) << WindowText(window);
    };
    WhileInputBox(isInTaskBar);
    WhileHostNotice(isInTaskBar);
}

} // namespace
} // namespace obrin::test
