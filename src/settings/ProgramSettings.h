// The settings of a program: the keys of its settings file with their defaults and controls, and the file's
// text, as values.
#pragma once

#include "resources/Ids.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace obrin {

struct Setting {
    std::string_view key;
    int defaultString; ///< in the string table; 0 for a default without a text of its own
    bool appendsName;  ///< the default ends in the name that the defaults are written for
    int control;       ///< of the Properties dialog: a box that holds the value, or a margin's slider
};

/// In the order of the file.
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

/// The values that a file names; nothing for a setting that it does not name.
using LoadedSettings = std::array<std::optional<std::string>, settings.size()>;

/// Gives the text of an id. The rules take it as an argument: only Windows reads the string table.
using StringTable = std::string (*)(int id);

/// The path of a program's settings file below the folder for temporary files of the host.
std::string SettingsPath(std::string_view temporaryFolder, std::string_view programKey);

/// The defaults for a program of that name.
SettingValues DefaultSettings(const std::string& name, StringTable stringTable);

/// The whole file. Blanks around a value are not kept.
std::string FormatSettings(const SettingValues& values);

/// The values of a file's text. Keys are case-sensitive, unknown ones are passed over, the last of equal ones
/// counts, and a value ends at a second "=". Throws RunTimeError for a line without "=".
LoadedSettings ParseSettings(std::string_view file, const std::string& fileName);

} // namespace obrin
