// The settings file of a program: where it lies, its defaults, saving and loading.
#pragma once

#include "settings/ProgramSettings.h"

#include <string>
#include <string_view>

namespace obrin {

/// The path of a program's settings file, below the folder of the environment variable "TesselTemp".
std::string SettingsPath(std::string_view programKey);

/// Writes the whole file with the defaults for `name`; folders that are missing are made. Throws
/// RunTimeError.
void WriteDefaultSettings(const std::string& iniPath, const std::string& name);

/// Writes the whole file with these values, unless it has them already; folders that are missing are made.
/// Until the new file is complete the old one stays. Throws RunTimeError.
void SaveSystemSettings(const std::string& iniPath, const SettingValues& values);

/// The values of the file. Throws RunTimeError.
LoadedSettings LoadSystemSettings(const std::string& iniPath);

} // namespace obrin
