#include "settings/SettingsStore.h"

#include "common/Text.h"
#include "platform/File.h"
#include "platform/FileReplacement.h"
#include "platform/StringTable.h"
#include "platform/Workstation.h"
#include "settings/FrameWorkFolders.h"

namespace obrin {

std::string SettingsPath(std::string_view programKey) {
    return SettingsPath(EnvironmentVariable("TesselTemp"), programKey);
}

void WriteDefaultSettings(const std::string& iniPath, const std::string& name) {
    SaveSystemSettings(iniPath, DefaultSettings(name, StringOfTable));
}

void SaveSystemSettings(const std::string& iniPath, const SettingValues& values) {
    EnsurePath(iniPath, true);
    ReplaceFileBytes(iniPath, FormatSettings(values));
}

LoadedSettings LoadSystemSettings(const std::string& iniPath) {
    return ParseSettings(ReadFileBytes(iniPath), iniPath);
}

} // namespace obrin
