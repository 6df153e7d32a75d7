// The names of the installation's files, folders and variables, and its limits.
#pragma once

namespace obrin {

constexpr const char* menuProgram = "ObrinMenu.exe";
constexpr const char* supportLibraryFile = "Corvel.dll";
constexpr const char* hostProgram = "Fenn.exe";

constexpr const char* hostConfigurationFile = "FennConfig.Sys";
constexpr const char* coreFolder = "Core";
constexpr const char* temporaryConfigurationFile = "Core\\TempOut.tmp";
constexpr const char* userRecordsFile = "UserWSID.sys";
constexpr const char* updateRegisterFile = "Updated.txt";
constexpr const char* startupPictureFile = "Startup.bmp";
constexpr const char* menuFileExtension = ".mnu";

/// Environment variables of a workstation: the host's local folder, and the base folder of the settings.
constexpr const char* localHostVariable = "Tessel";
constexpr const char* temporaryFolderVariable = "TesselTemp";
constexpr const char* settingsFolder = "\\Ini\\"; ///< below the base folder of the settings

/// The menu's key below HKEY_LOCAL_MACHINE, and the one that the Properties dialog reads.
constexpr const char* menuRegistryKey = "Software\\Obrin";
constexpr const char* propertiesRegistryKey = "Software\\Obrin\\Menu";
constexpr const char* lastSystemValue = "LastSystem";

constexpr int maxSystems = 99; ///< item 99 of the System List is its template
constexpr int maxWsid = 99;    ///< workstation numbers are 1 to 99

} // namespace obrin
