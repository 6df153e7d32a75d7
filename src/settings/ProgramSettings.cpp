#include "settings/ProgramSettings.h"

#include "common/Installation.h"
#include "common/Lines.h"
#include "common/RunTimeError.h"
#include "common/Text.h"
#include "settings/InifileManipulation.h"

#include <algorithm>

namespace obrin {

std::string SettingsPath(std::string_view temporaryFolder, std::string_view programKey) {
    return std::string(temporaryFolder).append(settingsFolder).append(TrimBlanks(programKey)).append(".ini");
}

SettingValues DefaultSettings(const std::string& name, StringTable stringTable) {
    SettingValues values;
    for (std::size_t i = 0; i < settings.size(); ++i) {
        if (settings[i].defaultString != 0)
            values[i] = stringTable(settings[i].defaultString);
        if (settings[i].appendsName)
            values[i] += name;
    }
    return values;
}

std::string FormatSettings(const SettingValues& values) {
    std::string file;
    for (std::size_t i = 0; i < settings.size(); ++i)
        file.append(FormatIniLine(settings[i].key, TrimBlanks(values[i]))).append("\r\n");
    return file;
}

LoadedSettings ParseSettings(std::string_view file, const std::string& fileName) {
    LoadedSettings loaded;
    LineReader lines(file, LoneLf::EndsLine); // some editors write lone LFs
    for (int number = 1; const auto line = lines.Next(); ++number) {
        const auto keyEnd = line->find('=');
        if (keyEnd == std::string_view::npos)
            throw RunTimeError(PlatformError::InvalidData,
                               fileName + ", line " + std::to_string(number) + ": there is no \"=\"");
        const auto setting = std::ranges::find(settings, TrimBlanks(line->substr(0, keyEnd)), &Setting::key);
        if (setting == settings.end())
            continue;
        const auto value = line->substr(keyEnd + 1);
        loaded[static_cast<std::size_t>(setting - settings.begin())] =
            TrimBlanks(value.substr(0, value.find('=')));
    }
    return loaded;
}

} // namespace obrin
