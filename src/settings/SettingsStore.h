// Loads and saves the settings file of a program.
#pragma once

#include "settings/ProgramSettings.h"

#include <string>
#include <string_view>

namespace obrin {

/// Returns the path of a program's settings file below the folder of the environment variable "TesselTemp".
std::string SettingsPath(std::string_view programKey);

/// Replaces the file by the defaults for `name`. Creates missing folders. Throws RunTimeError.
void WriteDefaultSettings(const std::string& iniPath, const std::string& name);

/// Replaces the file, unless it has these values already. Creates missing folders. Throws RunTimeError.
void SaveSystemSettings(const std::string& iniPath, const SettingValues& values);

/// Loads the values of the file. Throws RunTimeError.
LoadedSettings LoadSystemSettings(const std::string& iniPath);

} // namespace obrin
