// The names of the installation's files, folders, variables and registry keys, and its limits.
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
constexpr const char* updateFolder = "Tessel\\Exe"; ///< programs that the update copies to a workstation

/// Environment variables of a workstation: its local host folder, and the folder above settingsFolder.
constexpr const char* localHostVariable = "Tessel";
constexpr const char* temporaryFolderVariable = "TesselTemp";
constexpr const char* settingsFolder = "\\Ini\\";

/// Keys below HKEY_LOCAL_MACHINE: the menu's own, and the one that the Properties dialog reads.
constexpr const char* menuRegistryKey = "Software\\Obrin";
constexpr const char* propertiesRegistryKey = "Software\\Obrin\\Menu";
constexpr const char* lastSystemValue = "LastSystem";

constexpr int maxSystems = 99; ///< items 0 to 98 of the System List; item 99 is its template
constexpr int maxWsid = 99;    ///< the largest workstation number; the smallest is 1

} // namespace obrin
