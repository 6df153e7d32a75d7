// The settings of a program: the table of all settings, and the format of the settings file.
#pragma once

#include "resources/Ids.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace obrin {

struct Setting {
    std::string_view key;
    int defaultString; ///< id of the default in the string table; 0 for an empty text
    bool appendsName;  ///< whether the default ends with the name of the program
    int control;       ///< id in the Properties dialog; for a margin, of its slider
};

/// All settings in the order of the file.
inline constexpr std::array<Setting, 13> settings{{
    {"Program", 0, true, IDC_TXT_PROGRAM_NAME},
    {"HelpFile", IDS_HELP_FOLDER, true, IDC_TXT_HELP_FILE},
    {"SaveToAsStart", 0, false, IDC_TXT_SAVE_TO_AS_START},
    {"Orientation", IDS_ORIENTATION, false, IDC_CMB_ORIENTATION},
    {"Height", IDS_HEIGHT, false, IDC_TXT_HEIGHT},
    {"Width", IDS_WIDTH, false, IDC_TXT_WIDTH},
    {"Lines", IDS_LINES, false, IDC_TXT_LINES},
    {"Columns", IDS_COLUMNS, false, IDC_TXT_COLUMNS},
    {"FontSize", IDS_FONT_SIZE, false, IDC_TXT_FONT_SIZE},
    {"TopMargin", IDS_TOP_MARGIN, false, IDC_SLD_MARGIN},
    {"BottomMargin", IDS_BOTTOM_MARGIN, false, IDC_SLD_MARGIN + 1},
    {"LeftMargin", IDS_LEFT_MARGIN, false, IDC_SLD_MARGIN + 2},
    {"RightMargin", IDS_RIGHT_MARGIN, false, IDC_SLD_MARGIN + 3},
}};

/// One value for each setting, in the order of the table.
using SettingValues = std::array<std::string, settings.size()>;

/// The values from a file; nothing for a setting that the file does not contain.
using LoadedSettings = std::array<std::optional<std::string>, settings.size()>;

/// Returns a text of the string table. It is a parameter, because only Windows can read the string table.
using StringTable = std::string (*)(int id);

/// Returns the path of a program's settings file. `temporaryFolder` is the value of "TesselTemp".
std::string SettingsPath(std::string_view temporaryFolder, std::string_view programKey);

/// Returns the defaults for a program.
SettingValues DefaultSettings(const std::string& name, StringTable stringTable);

/// Returns the text of the settings file. Trims the values.
std::string FormatSettings(const SettingValues& values);

/// Parses the text of a settings file. Keys are case-sensitive. Ignores unknown keys; if a key is used twice,
/// the last value counts. A value ends at a second "=". Throws RunTimeError for a line without "=".
LoadedSettings ParseSettings(std::string_view file, const std::string& fileName);

} // namespace obrin
