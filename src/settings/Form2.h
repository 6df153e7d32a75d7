// The Properties dialog: shows and edits the settings of one program on three pages.
#pragma once

#include "controls/Dialog.h"
#include "platform/SupportLibrary.h"
#include "settings/ProgramSettings.h"

#include <array>
#include <cstddef>
#include <string>

namespace obrin {

class Form2 final : public Dialog {
public:
    /// Keeps a reference to `selectedKey` and reads it when the dialog opens and each time it saves.
    Form2(const SupportLibrary& supportLibrary, const std::string& selectedKey)
        : corvel(supportLibrary)
        , programKey(selectedKey) {}

    /// Shows the dialog modally. Returns when it is closed, or destroyed with the menu window.
    void Show(HWND owner);

private:
    static INT_PTR CALLBACK PageProcedure(HWND page, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnCommand(int id, int notification);

    void Form_Load();
    void TabStrip1_Click();
    void cmbOrientation_DropDown();
    void cmbOrientation_Click();
    void sldMargin_Change(std::size_t index);
    void txtMargin_Change(std::size_t index);
    void txtMargin_LostFocus(std::size_t index);
    void Command1_Click(int id);
    void Command2_Click();

    void CreatePages();
    void PrepareSliders();
    void CreateTips();
    void SendTip(UINT message, std::size_t index);
    void OnLayout() override { PlacePages(); }
    void PlacePages();
    void BringToFront(std::size_t page);
    void SaveSettings() const;
    void LoadSettings();
    void ShowValue(std::size_t setting, const std::string& value);
    std::string ReadValue(std::size_t setting) const;
    int SliderValue(std::size_t index) const;
    void WriteMarginText(std::size_t index);

    const SupportLibrary& corvel;
    const std::string& programKey;
    std::string IniPath;
    std::string rememberedOrientation; // the text when the list was last opened
    LoadedSettings loadedValues;
    SettingValues shownTexts;  // the texts of the controls after the last load
    std::size_t shownPage = 0; // index of the page in front

    HWND TabStrip1 = nullptr;
    std::array<HWND, 3> Frame{};
    HWND cmbOrientation = nullptr;
    std::array<HWND, 4> txtMargin{};
    std::array<HWND, 4> sldMargin{};
    std::array<int, 4> shownMargin{}; // slider values that the boxes show
    HWND sliderTips = nullptr;
};

} // namespace obrin
