#include "settings/Form2.h"

#include "common/Installation.h"
#include "common/Numbers.h"
#include "common/Text.h"
#include "controls/Theme.h"
#include "controls/WindowText.h"
#include "platform/Failure.h"
#include "platform/File.h"
#include "platform/Workstation.h"
#include "resources/Ids.h"
#include "settings/Margins.h"
#include "settings/SettingsStore.h"

namespace obrin {

namespace {

constexpr std::array<const char*, 3> tabCaptions{"General", "Page Settings", "Page Margins"};

// The most that a user can type into a box. A box needs half a minute to show ten megabytes of text.
constexpr std::size_t maxTextBytes = 32767;

// Returns the index of a control in its array. For other controls the result is outside of the array.
std::size_t IndexInArray(int id, int firstId) {
    return static_cast<std::size_t>(id - firstId);
}

} // namespace

void Form2::Show(HWND owner) {
    ShowModal(owner, IDD_PROPERTIES);
}

INT_PTR Form2::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG:
        Form_Load();
        return FALSE; // Form_Load has set the focus
    case WM_COMMAND:
        OnCommand(LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    case WM_HSCROLL: // a slider sends it also when the user releases it without moving it
        if (const auto index = IndexInArray(GetDlgCtrlID(reinterpret_cast<HWND>(lParam)), IDC_SLD_MARGIN);
            index < sldMargin.size() && SliderValue(index) != shownMargin[index])
            sldMargin_Change(index);
        return TRUE;
    case WM_NOTIFY:
        if (const auto* from = reinterpret_cast<const NMHDR*>(lParam);
            from->hwndFrom != TabStrip1 || from->code != static_cast<UINT>(TCN_SELCHANGE))
            return FALSE;
        TabStrip1_Click();
        return TRUE;
    default:
        return FALSE;
    }
}

void Form2::OnCommand(int id, int notification) {
    if (id == IDOK || id == IDCANCEL || id == IDC_APPLY) {
        Command1_Click(id);
    } else if (id == IDC_COMMAND2) {
        Command2_Click();
    } else if (id == IDC_CMB_ORIENTATION) {
        if (notification == CBN_DROPDOWN)
            cmbOrientation_DropDown();
        else if (notification == CBN_SELCHANGE)
            cmbOrientation_Click();
    } else if (const auto index = IndexInArray(id, IDC_TXT_MARGIN); index < txtMargin.size()) {
        if (notification == EN_CHANGE)
            txtMargin_Change(index);
        else if (notification == EN_KILLFOCUS)
            txtMargin_LostFocus(index);
    }
}

// --- Load and pages ---

void Form2::Form_Load() {
    IniPath = SettingsPath(programKey);
    if (!FileExists(IniPath))
        WriteDefaultSettings(IniPath, std::string(TrimBlanks(programKey)));
    CreatePages();
    PrepareSliders();
    CreateTips();
    LoadSettings();
    SetFocus(TabStrip1);
}

// Forwards the notifications of the page's controls to the dialog.
INT_PTR CALLBACK Form2::PageProcedure(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG:
        UseTabBackground(page);
        return FALSE;
    case WM_COMMAND:
    case WM_HSCROLL:
        SendMessageA(GetParent(page), message, wParam, lParam);
        return TRUE;
    case WM_DPICHANGED_BEFOREPARENT:
    case WM_DPICHANGED_AFTERPARENT:
        return TRUE; // Dialog::ApplyLayout scales the pages
    default:
        return FALSE;
    }
}

void Form2::CreatePages() {
    TabStrip1 = Control(IDC_TABSTRIP1);
    for (std::size_t i = 0; i < tabCaptions.size(); ++i) {
        std::string caption = tabCaptions[i];
        TCITEMA tab{};
        tab.mask = TCIF_TEXT;
        tab.pszText = caption.data();
        SendMessageA(TabStrip1, TCM_INSERTITEMA, i, reinterpret_cast<LPARAM>(&tab));
    }

    for (std::size_t i = 0; i < Frame.size(); ++i) {
        Frame[i] = CreateDialogParamA(Instance(), MAKEINTRESOURCEA(IDD_PAGE_GENERAL + static_cast<int>(i)),
                                      window, PageProcedure, 0);
        if (Frame[i] == nullptr)
            ThrowLastError("Opening the Properties dialog");
        AddPage(Frame[i]);
    }
    PlacePages();

    cmbOrientation = Control(IDC_CMB_ORIENTATION);
    for (const char* item : {"Portrait", "Landscape"})
        SendMessageA(cmbOrientation, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
}

// Puts all pages into the client area of the tab strip. The pages behind the front one are visible, but they
// are disabled and cannot get the focus.
void Form2::PlacePages() {
    RECT inner;
    GetWindowRect(TabStrip1, &inner);
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&inner), 2);
    SendMessageA(TabStrip1, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&inner));
    for (const HWND page : Frame)
        SetWindowPos(page, HWND_BOTTOM, inner.left, inner.top, inner.right - inner.left,
                     inner.bottom - inner.top, SWP_NOACTIVATE);
    BringToFront(shownPage);
}

void Form2::BringToFront(std::size_t page) {
    EnableWindow(Frame[page], TRUE);
    SetWindowPos(Frame[page], HWND_TOP, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void Form2::TabStrip1_Click() {
    const auto selected = static_cast<std::size_t>(SendMessageA(TabStrip1, TCM_GETCURSEL, 0, 0));
    if (selected >= Frame.size())
        return;
    BringToFront(selected);
    if (selected == shownPage)
        return;
    const HWND old = Frame[shownPage];
    if (IsChild(old, GetFocus()))
        SendMessageA(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(TabStrip1), TRUE);
    EnableWindow(old, FALSE);
    ShowWindow(old, SW_HIDE);
    shownPage = selected;
}

// --- Orientation ---

void Form2::cmbOrientation_DropDown() {
    rememberedOrientation = WindowText(cmbOrientation);
}

void Form2::cmbOrientation_Click() {
    // At CBN_SELCHANGE the combo box still has its old text. Only the list has the new one.
    const LRESULT chosen = SendMessageA(cmbOrientation, CB_GETCURSEL, 0, 0);
    if (chosen == CB_ERR)
        return;
    std::array<char, 16> text{}; // longer than any item
    SendMessageA(cmbOrientation, CB_GETLBTEXT, static_cast<WPARAM>(chosen),
                 reinterpret_cast<LPARAM>(text.data()));
    if (text.data() == rememberedOrientation)
        return;
    const std::string height = WindowText(Control(IDC_TXT_HEIGHT));
    SetWindowTextA(Control(IDC_TXT_HEIGHT), WindowText(Control(IDC_TXT_WIDTH)).c_str());
    SetWindowTextA(Control(IDC_TXT_WIDTH), height.c_str());
}

// --- Margins ---

void Form2::PrepareSliders() {
    constexpr int tick = 250;   // a quarter of an inch, also the step of a click next to the slider's thumb
    constexpr int keyStep = 10; // a hundredth of an inch
    for (std::size_t i = 0; i < sldMargin.size(); ++i) {
        txtMargin[i] = Control(IDC_TXT_MARGIN + static_cast<int>(i));
        const HWND slider = sldMargin[i] = Control(IDC_SLD_MARGIN + static_cast<int>(i));
        SendMessageA(slider, TBM_SETRANGE, FALSE, MAKELPARAM(smallestMargin, largestMargin));
        SendMessageA(slider, TBM_SETTICFREQ, tick, 0);
        SendMessageA(slider, TBM_SETPAGESIZE, 0, tick);
        SendMessageA(slider, TBM_SETLINESIZE, 0, keyStep);
    }
}

void Form2::CreateTips() {
    sliderTips =
        CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0,
                        0, 0, 0, window, nullptr, nullptr, nullptr);
    for (std::size_t i = 0; i < sldMargin.size(); ++i)
        SendTip(TTM_ADDTOOLA, i);
}

void Form2::SendTip(UINT message, std::size_t index) {
    std::string text = FormatThousandths(SliderValue(index));
    TOOLINFOA tip{};
    tip.cbSize = sizeof tip;
    tip.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tip.hwnd = window;
    tip.uId = reinterpret_cast<UINT_PTR>(sldMargin[index]);
    tip.lpszText = text.data();
    SendMessageA(sliderTips, message, 0, reinterpret_cast<LPARAM>(&tip));
}

int Form2::SliderValue(std::size_t index) const {
    return static_cast<int>(SendMessageA(sldMargin[index], TBM_GETPOS, 0, 0));
}

void Form2::sldMargin_Change(std::size_t index) {
    shownMargin[index] = SliderValue(index);
    SendTip(TTM_UPDATETIPTEXTA, index);
    WriteMarginText(index);
}

void Form2::WriteMarginText(std::size_t index) {
    const HWND box = txtMargin[index];
    const std::string before = WindowText(box);
    const std::string text = FormatThousandths(SliderValue(index));
    if (text == before)
        return; // setting the same text would clear the undo buffer of the box
    DWORD caret = 0;
    SendMessageA(box, EM_GETSEL, 0, reinterpret_cast<LPARAM>(&caret));
    SetWindowTextA(box, text.c_str()); // moves the caret to the start
    if (const std::size_t position = CaretAfterChange(before, caret, text); position != 0)
        SendMessageA(box, EM_SETSEL, position, static_cast<LPARAM>(position));
}

// sldMargin_Change sets the text of the box, which calls this handler again. The slider has the new value by
// then, and the handler returns.
void Form2::txtMargin_Change(std::size_t index) {
    const auto margin = ParseTypedMargin(WindowText(txtMargin[index]));
    if (!margin || *margin == SliderValue(index))
        return;
    SendMessageA(sldMargin[index], TBM_SETPOS, TRUE, *margin);
    sldMargin_Change(index);
}

void Form2::txtMargin_LostFocus(std::size_t index) {
    if (EqualsMargin(WindowText(txtMargin[index]), SliderValue(index)))
        WriteMarginText(index);
}

// --- Saving and loading ---

void Form2::Command1_Click(int id) {
    if (id != IDCANCEL)
        SaveSettings();
    if (id != IDC_APPLY)
        EndDialog(window, id);
}

void Form2::Command2_Click() {
    WriteDefaultSettings(IniPath, IniPath); // a reset file contains its own path instead of the program key
    LoadSettings();
}

void Form2::SaveSettings() const {
    SettingValues values;
    for (std::size_t i = 0; i < settings.size(); ++i)
        values[i] = ReadValue(i);
    SaveSystemSettings(IniPath, values);
}

void Form2::LoadSettings() {
    // Other programs of the suite may set this value. The menu stores its own last system under another key.
    const std::string lastSystem =
        corvel.GetRegValue(HKEY_LOCAL_MACHINE, propertiesRegistryKey, lastSystemValue);
    SetWindowTextA(Control(IDC_TXT_SYSTEM),
                   std::string(FirstCharacters(lastSystem, 2, CodePageLeadByteTest())).c_str());
    loadedValues = LoadSystemSettings(IniPath);
    for (std::size_t i = 0; i < settings.size(); ++i) {
        if (loadedValues[i])
            ShowValue(i, *loadedValues[i]);
        else if (const auto margin = IndexInArray(settings[i].control, IDC_SLD_MARGIN);
                 margin < sldMargin.size())
            sldMargin_Change(margin); // the file has no such margin: the box shows the slider's value
    }
}

void Form2::ShowValue(std::size_t setting, const std::string& value) {
    const int id = settings[setting].control;
    if (const auto margin = IndexInArray(id, IDC_SLD_MARGIN); margin < sldMargin.size()) {
        SendMessageA(sldMargin[margin], TBM_SETPOS, TRUE, ParseMargin(value));
        sldMargin_Change(margin); // needed even for the same value: the user may have typed into the box
        return;
    }
    const HWND control = Control(id);
    if (control == cmbOrientation) {
        // Selects the item, so that the arrow keys continue from it. SetWindowText sets the exact text below.
        const LRESULT item = SendMessageA(cmbOrientation, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                          reinterpret_cast<LPARAM>(value.c_str()));
        SendMessageA(cmbOrientation, CB_SETCURSEL, static_cast<WPARAM>(item), 0);
    }
    SetWindowTextA(control, value.substr(0, maxTextBytes).c_str());
    shownTexts[setting] = WindowText(control);
}

std::string Form2::ReadValue(std::size_t setting) const {
    const int control = settings[setting].control;
    // The user can edit the box, but the file always gets the key from the tree.
    if (control == IDC_TXT_PROGRAM_NAME)
        return programKey;
    if (const auto margin = IndexInArray(control, IDC_SLD_MARGIN); margin < sldMargin.size())
        return FormatThousandths(SliderValue(margin));
    // A box that the user has not edited may show only the start of a very long value.
    std::string text = WindowText(Control(control));
    return loadedValues[setting] && text == shownTexts[setting] ? *loadedValues[setting] : text;
}

} // namespace obrin
