// The fixed texts of the windows, letter for letter, the default buttons and the keyboard focus.

#include "controls/WindowTest.h"
#include "maintenance/AboutTexts.h"
#include "platform/Failure.h"

namespace obrin::test {
namespace {

using W = WindowTest;
using Texts = std::vector<std::string>;

// What a person reads in a window, control by control as the Tab key goes through it, its caption first.
// "..." stands for a control whose contents vary: a screen reader names it by the label before it.
Texts TextsOf(HWND window) {
    Texts texts{WindowText(window)};
    for (const HWND control : ShownControls(window)) {
        const auto isOneOf = [=](auto... names) { return (HasClass(control, names) || ...); };
        if (IsLabel(control) || isOneOf(WC_BUTTONA))
            texts.push_back(WindowText(control));
        else if (isOneOf(WC_EDITA, WC_COMBOBOXA, TRACKBAR_CLASSA, WC_TREEVIEWA))
            texts.emplace_back("...");
    }
    return texts;
}

TEST_F(WindowTest, FixedTextsAreShownLetterForLetterInTabOrder) {
    const std::pair<WhileWindow, Texts> windows[] = {
        {&W::WhileMenu,
         {"Obrin System Menu", "E-Mail us!", "Got a better idea?", "Utility Billing", "...", "&Run Program",
          "Utility Billing", "User - " + LoginName(), "WSID - 05"}},
        {&W::WhileGeneralPage,
         {"Properties", "General Settings", "System:", "...", "Program Name:", "...", "Help File:", "...",
          "Restore Defaults", "OK", "Cancel", "Apply"}},
        {&W::WhileSettingsPage, {"Properties", "Page Settings (Print Properties)",
                                 "Page:",      "Height:",
                                 "...",        "Width:",
                                 "...",        "Orientation:",
                                 "...",        "Lines:",
                                 "...",        "Columns:",
                                 "...",        "Font Size:",
                                 "...",        "Save to as Start:",
                                 "...",        "OK",
                                 "Cancel",     "Apply"}},
        {&W::WhileMarginsPage, // each margin has a box and a slider
         {"Properties", "Page Margins (Print Properties)", "Top Margin", "...", "...", "Bottom Margin", "...",
          "...", "Left Margin", "...", "...", "Right Margin", "...", "...", "OK", "Cancel", "Apply"}},
        {&W::WhileAboutBox,
         {"Obrin Software Systems", "Obrin Core System", std::string("Version ") + OBRIN_PROJECT_VERSION,
          descriptionText, disclaimerText, "OK", "&System Info..."}},
        {&W::WhileUpdateWindow,
         {"Auto Update Utility", "Updating:\r\nComplete",
          "We have detect a workstation update is available. We are now updating your files.", "O&kay"}},
        {&W::WhileHostNotice,
         {"Waiting for Fenn", "The menu opens as soon as Fenn.exe shows its window Obrin-05.",
          "Folder:", CurrentFolder(),
          "Fenn.exe could not be started: " + PlatformText(ERROR_BAD_EXE_FORMAT, "Fenn.exe"), "Cancel"}},
    };
    for (const auto& [whileOpen, expected] : windows)
        (this->*whileOpen)([texts = expected](HWND window) { EXPECT_EQ(TextsOf(window), texts); });
}

TEST_F(WindowTest, PropertiesHaveThreeTabs) {
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

TEST_F(WindowTest, HostNoticeDoesNotTakeTheKeyboard) {
    WhileHostNotice([](HWND notice) { EXPECT_NE(GetActiveWindow(), notice); });
}

TEST_F(WindowTest, WindowsShownBeforeTheMenuAreInTheTaskBar) {
    const WindowAction isInTaskBar = [](HWND window) {
        EXPECT_TRUE((GetWindowExStyle(window) & WS_EX_APPWINDOW) != 0) << WindowText(window);
    };
    WhileInputBox(isInTaskBar);
    WhileHostNotice(isInTaskBar);
}

} // namespace
} // namespace obrin::test
