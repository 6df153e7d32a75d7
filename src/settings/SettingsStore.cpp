#include "settings/SettingsStore.h"

#include "common/Installation.h"
#include "common/Text.h"
#include "platform/Failure.h"
#include "platform/File.h"
#include "platform/FileReplacement.h"
#include "platform/Folder.h"
#include "platform/WindowsApi.h"
#include "platform/Workstation.h"
#include "resources/Ids.h"
#include "settings/FrameWork.h"

#include <array>

namespace obrin {

namespace {

std::string LoadStringFromTable(int id) {
    std::array<char, 256> text;
    const int length = LoadStringA(Instance(), static_cast<UINT>(id), text.data(), text.size());
    if (length == 0)
        ThrowLastError("Reading string " + std::to_string(id) + " of the program");
    return {text.data(), static_cast<std::size_t>(length)};
}

} // namespace

std::string SettingsPath(std::string_view programKey) {
    return SettingsPath(EnvironmentVariable(temporaryFolderVariable), programKey);
}

void WriteDefaultSettings(const std::string& iniPath, const std::string& name) {
    SaveSystemSettings(iniPath, DefaultSettings(name, LoadStringFromTable));
}

void SaveSystemSettings(const std::string& iniPath, const SettingValues& values) {
    EnsurePath(iniPath, true,
               {.exists = FolderExists, .create = CreateFolder, .isLeadByte = CodePageLeadByteTest()});
    ReplaceFileBytes(iniPath, FormatSettings(values));
}

LoadedSettings LoadSystemSettings(const std::string& iniPath) {
    return ParseSettings(ReadFileBytes(iniPath), iniPath);
}

} // namespace obrin
