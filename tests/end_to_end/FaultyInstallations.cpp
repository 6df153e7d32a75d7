#include "end_to_end/FaultyInstallations.h"

#include "common/Installation.h"
#include "end_to_end/Installation.h"

namespace obrin::test {
namespace {

using namespace std::string_literals;
using enum Effect;

const std::string noHeading = "there is no heading one level above this entry";
const std::string isHeld = "cannot be read (" + PlatformText(ERROR_SHARING_VIOLATION) + ")";
const std::string isFolder = "a folder has this name";
const std::string isFile = "a file has the name of this folder";
const std::string csBackupSettings = "Temp\\Ini\\Core\\Programs\\CSBackup.ini";
const std::string settingsPlace = "HERE\\" + csBackupSettings;

std::vector<HANDLE> heldFiles;

void Write(const std::string& path, const std::string& bytes) {
    WriteFileBytes(path, bytes);
}

void WriteMenu(const std::string& bytes) {
    Write("UB.mnu", bytes);
}

void Delete(const std::string& path) {
    std::filesystem::remove_all(path);
}

void MakeFolder(const std::string& path) {
    std::filesystem::create_directories(path);
}

void PutFolderInPlaceOf(const std::string& path) {
    Delete(path);
    MakeFolder(path);
}

void PutFileInPlaceOf(const std::string& path) {
    Delete(path);
    Write(path, "x");
}

void SetAttributes(const std::string& path, DWORD attributes) {
    SetFileAttributesA(path.c_str(), attributes);
}

// Keeps the file open as another program may do. `sharing` is what others may do meanwhile (FILE_SHARE_...).
void Hold(const std::string& path, DWORD sharing = 0) {
    heldFiles.push_back(CreateFileA(path.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr));
}

void SetVariable(const char* variable, const std::string& value) {
    SetEnvironmentVariableA(variable, value.c_str());
}

void Remember(const std::string& system) {
    RegSetKeyValueA(HKEY_LOCAL_MACHINE, menuRegistryKey, lastSystemValue, REG_SZ, system.c_str(),
                    static_cast<DWORD>(system.size() + 1));
}

void Patch(const std::string& path, std::string_view from, std::string_view to) {
    std::string bytes = ReadFileBytes(path);
    bytes.replace(bytes.find(from), from.size(), to);
    Write(path, bytes);
}

// Writes the settings file of the program CSBackup.
void WriteSettings(const std::string& bytes) {
    MakeFolder("Temp\\Ini\\Core\\Programs");
    Write(csBackupSettings, bytes);
}

// For faults that do not stop the menu, that Wine treats differently, or with which the menu cannot be tried.
constexpr bool checkerOnly = true;
constexpr bool is64 = sizeof(void*) == 8;

} // namespace

std::vector<FaultyInstallation> FaultyMenuFiles() {
    return {
        {"an empty file", [] { WriteMenu(""); }, {{"UB.mnu", EndsEveryStart, "the file has no header line"}}},
        {"nothing but a title", [] { WriteMenu("T"); }, {}},
        {"an empty title", [] { WriteMenu(" ^T\r\nA^K"); }, {{"UB.mnu:1", None, "the title is empty"}}},
        {"an entry before any heading",
         [] { WriteMenu("T\r\n>A^K"); },
         {{"UB.mnu:2", EndsShownSystem, noHeading}}},
        {"an empty line above a deeper entry",
         [] { WriteMenu("T\r\nA\r\n>B\r\n\r\n>>C^K\r\nD\r\n>E^L"); },
         {{"UB.mnu:2", None, "the heading \"A\" holds no program"},
          {"UB.mnu:4", None, "an empty line"},
          {"UB.mnu:5", EndsShownSystem, noHeading + ": the empty line 4 has closed the headings above it"}}},
        {"a key twice",
         [] { WriteMenu("T\r\nA^K\r\nB^K"); },
         {{"UB.mnu:3", EndsShownSystem, "the key K is already used in line 2"}}},
        {"a key that is a number",
         [] { WriteMenu("T\r\nA^0912^x"); },
         {{"UB.mnu:2", EndsShownSystem, "the key 0912 is a number"}}},
        {"one entry too many",
         [] {
             std::string entries;
             for (int i = 0; i < 32'768; ++i)
                 entries += "\rA^";
             WriteMenu("T" + entries);
         },
         {{"UB.mnu:32769", EndsShownSystem, "more than 32,767 entries"}}},
        {"a key with a character that no file name may hold",
         [] { WriteMenu("T\r\nA^a?"); },
         {{"UB.mnu:2", EndsProperties, "the key a? holds the character ?"}}},
        {"a key with a control character",
         [] { WriteMenu("T\r\nA^K\x1B[2J"); },
         {{"UB.mnu:2", EndsProperties, "the key K\x1B[2J holds a control character"}}},
        {"a key that names a device",
         [] { WriteMenu("T\r\nA^Core\\nul"); },
         {{"UB.mnu:2", EndsProperties, "the key Core\\nul names a device of Windows (nul)"}}},
        {"a key that leads out of the settings folder",
         [] { WriteMenu("T\r\nA^..\\K"); },
         {{"UB.mnu:2", None, "the key ..\\K holds \"..\""}}},
        {"a second menu file with a fault",
         [] { Write("ZZ.mnu", "T\r\n>A^K"); },
         {{"Help\\ZZ\\Index.html", None, "missing"}, {"ZZ.mnu:2", EndsShownSystem, noHeading}}},
        {"a hidden menu file with a fault",
         [] {
             Write("ZZ.mnu", "T\r\n>A^K");
             SetAttributes("ZZ.mnu", FILE_ATTRIBUTE_HIDDEN);
         },
         {{"ZZ.mnu", None, "hidden or a system file"}, {"ZZ.mnu:2", None, noHeading}}},
        {"a menu file with the system attribute that another program holds",
         [] {
             Write("ZZ.mnu", "T");
             SetAttributes("ZZ.mnu", FILE_ATTRIBUTE_SYSTEM);
             Hold("ZZ.mnu");
         },
         {{"ZZ.mnu", None, isHeld}, {"ZZ.mnu", None, "hidden or a system file"}}},
        {"a name that ends in .MNU",
         [] { Write("ZZ.MNU", "T"); },
         {{"ZZ.MNU", None, "the name does not end in .mnu in small letters"}}},
        {"a folder with the name of a menu file",
         [] { MakeFolder("ZZ.mnu"); },
         {{"ZZ.mnu", None, "a folder"}}},
        {"no menu file",
         [] { Delete("UB.mnu"); },
         {{".", EndsEveryStart, "there is no menu file (*.mnu) here"}}},
        {"a menu file that another program holds",
         [] { Hold("UB.mnu"); },
         {{"UB.mnu", EndsEveryStart, isHeld}}},
        {"two systems with the same code",
         [] { Write("ub2.mnu", "T\r\nA^K"); },
         {{"ub2.mnu", None, "the same system code (ub) as UB.mnu"}}},
    };
}

std::vector<FaultyInstallation> RememberedSystems() {
    return {
        {"a remembered system that is hidden and faulty",
         [] {
             Write("ZZ.mnu", "T\r\n>A^K");
             SetAttributes("ZZ.mnu", FILE_ATTRIBUTE_HIDDEN);
             Remember(" ZZ.mnu ");
         },
         {{"ZZ.mnu", None, "hidden or a system file"}, {"ZZ.mnu:2", EndsShownSystem, noHeading}}},
        {"a remembered file that is no menu file", [] { Remember("UserWSID.sys"); }, {}},
    };
}

std::vector<FaultyInstallation> FaultyFiles() {
    return {
        {"no configuration",
         [] { Delete(hostConfigurationFile); },
         {{"FennConfig.Sys", EndsEveryStart, "missing"}}},
        {"a folder in the place of the configuration",
         [] { PutFolderInPlaceOf(hostConfigurationFile); },
         {{"FennConfig.Sys", EndsEveryStart, isFolder}}},
        {"a read-only configuration",
         [] { SetAttributes(hostConfigurationFile, FILE_ATTRIBUTE_READONLY); },
         {{"FennConfig.Sys", EndsEveryStart, "read-only"}}},
        {"a configuration that another program holds",
         [] { Hold(hostConfigurationFile); },
         {{"FennConfig.Sys", EndsEveryStart, isHeld}}},
        {"a configuration that another program keeps from being replaced",
         [] { Hold(hostConfigurationFile, FILE_SHARE_READ | FILE_SHARE_WRITE); },
         {{"FennConfig.Sys", None, "cannot be replaced (" + PlatformText(ERROR_SHARING_VIOLATION) + ")"}}},
        {"no Core", [] { Delete(coreFolder); }, {{"Core", EndsEveryStart, "this folder is missing"}}},
        {"a file in the place of Core",
         [] { PutFileInPlaceOf(coreFolder); },
         {{"Core", EndsEveryStart, isFile}}},
        {"a folder in the place of the temporary file",
         [] { MakeFolder(temporaryConfigurationFile); },
         {{"Core\\TempOut.tmp", EndsEveryStart, isFolder}}},
        {"no library", [] { Delete(supportLibraryFile); }, {{"Corvel.dll", EndsEveryStart, "missing"}}},
        {"a 32-bit library for a 64-bit menu, or the reverse",
         [] {
             Patch(supportLibraryFile, "PE\0\0"s + (is64 ? "\x64\x86" : "\x4C\x01"),
                   "PE\0\0"s + (is64 ? "\x4C\x01" : "\x64\x86"));
         },
         {{"Corvel.dll", EndsEveryStart,
           std::string("cannot be used (Corvel.dll is not a ") + (is64 ? "64" : "32") +
               "-bit library. Use the one that came with ObrinMenu.exe: " + PlatformText(ERROR_INVALID_DATA) +
               ")"}}},
        {"a library without SetRegValue",
         [] { Patch(supportLibraryFile, "\0SetRegValue\0"s, "\0SetRegFalue\0"s); },
         {{"Corvel.dll", EndsEveryStart,
           "cannot be used (Looking for SetRegValue in Corvel.dll: " + PlatformText(ERROR_PROC_NOT_FOUND) +
               ")"}}},
        {"a library that needs a missing one",
         [] { Patch(supportLibraryFile, "OLEAUT32.dll", "OLEAUT99.dll"); },
         {{"Corvel.dll", EndsEveryStart,
           "cannot be used (Loading Corvel.dll: " + PlatformText(ERROR_MOD_NOT_FOUND) + ")"}}},
        {"no host", [] { Delete(hostProgram); }, {{"Fenn.exe", WaitsForEver, "missing"}}},
        {"an empty host",
         [] { Write(hostProgram, ""); },
         {{"Fenn.exe", WaitsForEver, "not a program that Windows can start"}}},
        {"a folder in the place of the host",
         [] { PutFolderInPlaceOf(hostProgram); },
         {{"Fenn.exe", WaitsForEver, isFolder}},
         checkerOnly}, // Windows would show the contents of the folder
        {"an empty menu program",
         [] { Write(menuProgram, ""); },
         {{"ObrinMenu.exe", WaitsForEver, "not a program that Windows can start"}},
         checkerOnly},
        {"a picture file without a picture",
         [] { Write(startupPictureFile, "no picture"); },
         {{"Startup.bmp", EndsEveryStart,
           "no picture that can be shown (" + PlatformText(ERROR_INVALID_DATA) + ")"}}},
        {"a picture that another program holds",
         [] {
             Write(startupPictureFile, Bmp(4, 1));
             Hold(startupPictureFile);
         },
         {{"Startup.bmp", EndsEveryStart, isHeld}}},
        {"a faulty picture that is hidden",
         [] {
             Write(startupPictureFile, "no picture");
             SetAttributes(startupPictureFile, FILE_ATTRIBUTE_HIDDEN);
         },
         {}},
        {"a folder in the place of the user records",
         [] { PutFolderInPlaceOf(userRecordsFile); },
         {{"UserWSID.sys", EndsEveryStart, isFolder}}},
        {"user records that another program lets others read but not write",
         [] { Hold(userRecordsFile, FILE_SHARE_READ); },
         {{"UserWSID.sys", EndsEveryStart,
           "cannot be written (" + PlatformText(ERROR_SHARING_VIOLATION) + ")"}}},
        {"a negative workstation number of this user",
         [] { Write(userRecordsFile, UserWsidRecord(LoginName(), -7)); },
         {{"UserWSID.sys", WaitsForEver,
           "record 1 gives the user " + LoginName() + " the workstation number -7"}}},
        {"a folder in the place of the register",
         [] { PutFolderInPlaceOf(updateRegisterFile); },
         {{"Updated.txt", EndsProgramRun, isFolder}}},
        {"a register that another program holds",
         [] { Hold(updateRegisterFile); },
         {{"Updated.txt", EndsProgramRun, isHeld}}},
        {"a read-only register",
         [] { SetAttributes(updateRegisterFile, FILE_ATTRIBUTE_READONLY); },
         {{"Updated.txt", EndsProgramRun, "read-only"}},
         checkerOnly}, // Wine lets root write it
        {"a folder in the place of the marker file",
         [] { MakeFolder("Menu 5.txt"); },
         {{"Menu 5.txt", EndsEveryStart, isFolder}}},
        {"a folder in the place of another workstation's marker file",
         [] { MakeFolder("Menu 99.txt"); },
         {{"Menu 99.txt", FailsForOthers, isFolder}}},
        {"a missing program of the update",
         [] { Delete("Tessel\\Exe\\Glass.Exe"); },
         {{"Tessel\\Exe\\Glass.Exe", None, "missing"}},
         checkerOnly},
        {"a due update whose programs are missing",
         [] {
             Delete("Tessel");
             Write(updateRegisterFile, "");
         },
         {{"Tessel\\Exe", None, "this folder is missing"}}},
        {"Tessel is not set",
         [] { SetVariable(localHostVariable, ""); },
         {{"Tessel", None, "this variable is not set here"}},
         checkerOnly},
        {"Tessel leads to a file",
         [] { SetVariable(localHostVariable, "UB.mnu"); },
         {{"Tessel", None, "this variable leads to UB.mnu: " + isFile}},
         checkerOnly},
        {"Tessel is in quotation marks",
         [] { SetVariable(localHostVariable, "\"Local\""); },
         {{"Tessel", None,
           "this variable leads to \"Local\": cannot be used for new files (" +
               PlatformText(ERROR_INVALID_NAME) + ")"}},
         checkerOnly},
        {"a folder in the place of a help page",
         [] { PutFolderInPlaceOf("Help\\Index.html"); },
         {{"Help\\Index.html", None, isFolder}},
         checkerOnly},
        {"no shortcut", [] { Delete("Obrin-User.url"); }, {{"Obrin-User.url", None, "missing"}}, checkerOnly},
        {"hidden files that the menu writes",
         [] {
             SetAttributes(updateRegisterFile, FILE_ATTRIBUTE_HIDDEN);
             SetAttributes(userRecordsFile, FILE_ATTRIBUTE_HIDDEN);
         },
         {}},
    };
}

std::vector<FaultyInstallation> FaultySettings() {
    const std::string leadsTo = "this variable leads to ";
    const std::string hasNoDrive = "this variable holds no drive or share: ";
    return {
        {"settings with an unknown key", [] { WriteSettings("Lines=1\r\nUnknown=x=y\r\n"); }, {}},
        {"a folder in quotation marks",
         [] { SetVariable(temporaryFolderVariable, "\"" + CurrentFolder() + "\\Temp\""); },
         {{"TesselTemp", None, hasNoDrive + "\"HERE\\Temp\""},
          {"TesselTemp", EndsProperties, leadsTo + "\"HERE\\Temp\", which holds the character \""}}},
        {"a relative folder that is missing",
         [] { SetVariable(temporaryFolderVariable, "Nowhere"); },
         {{"TesselTemp", None, hasNoDrive + "Nowhere"},
          {"TesselTemp", EndsProperties, leadsTo + "Nowhere: this folder is missing"}}},
        {"a file in the place of the folder",
         [] { SetVariable(temporaryFolderVariable, CurrentFolder() + "\\UB.mnu"); },
         {{"TesselTemp", EndsProperties, leadsTo + "HERE\\UB.mnu: " + isFile}}},
        {"a missing drive",
         [] { SetVariable(temporaryFolderVariable, "Q:\\Temp"); },
         {{"TesselTemp", EndsProperties, leadsTo + "Q:\\Temp: this folder is missing"}}},
        {"a folder whose path is too long",
         [] { SetVariable(temporaryFolderVariable, "C:\\" + std::string(250, 'x')); },
         {{"TesselTemp", EndsProperties,
           leadsTo + "C:\\" + std::string(197, 'x') + "..., which is too long"}},
         checkerOnly}, // Wine takes longer paths than Windows
        {"a folder whose path holds a control character",
         [] { SetVariable(temporaryFolderVariable, CurrentFolder() + "\\a\x01"); },
         {{"TesselTemp", EndsProperties, leadsTo + "HERE\\a\x01, which holds a control character"}}},
        {"a missing folder that the menu makes",
         [] { SetVariable(temporaryFolderVariable, CurrentFolder() + "\\New\\Temp"); },
         {}},
        {"a key that is too long",
         [] { WriteMenu("T\r\nA^" + std::string(250, 'x')); },
         {{"UB.mnu:2", EndsProperties,
           "the key " + std::string(200, 'x') + "... makes the path of its settings file too long"}},
         checkerOnly},
        {"a key with a slash after a missing folder",
         [] { WriteMenu("T\r\nA^Core/CSBackup"); },
         {{"UB.mnu:2", EndsProperties,
           "the key Core/CSBackup leads to a folder that is missing, and the menu makes only folders in "
           "front of a \"\\\""}}},
        {"a key with a slash after an existing folder",
         [] {
             MakeFolder("Temp\\Ini\\Core");
             WriteMenu("T\r\nA^Core/CSBackup");
         },
         {}},
        {"a file in the place of a folder in the key",
         [] {
             MakeFolder("Temp\\Ini");
             Write("Temp\\Ini\\Core", "x");
         },
         {{"HERE\\Temp\\Ini\\Core\\", EndsProperties, isFile}}},
        {"settings without an equals sign",
         [] { WriteSettings("Lines=1\r\nLines\r\n"); },
         {{settingsPlace, EndsProperties, "not a settings file, line 2: there is no \"=\""}}},
        {"a folder in the place of a settings file",
         [] { MakeFolder(csBackupSettings); },
         {{settingsPlace, EndsProperties, isFolder}}},
        {"settings that another program holds",
         [] {
             WriteSettings("Lines=1");
             Hold(csBackupSettings);
         },
         {{settingsPlace, EndsProperties, isHeld}}},
        {"settings that a reader has open and lets others replace",
         [] {
             WriteSettings("Lines=1");
             Hold(csBackupSettings, FILE_SHARE_READ | FILE_SHARE_DELETE);
         },
         {}},
        {"settings that are read-only",
         [] {
             WriteSettings("Lines=1");
             SetAttributes(csBackupSettings, FILE_ATTRIBUTE_READONLY);
         },
         {{settingsPlace, EndsProperties, "read-only"}}},
    };
}

void ReleaseFiles() {
    for (const HANDLE file : heldFiles)
        CloseHandle(file);
    heldFiles.clear();
    for (const auto& entry : std::filesystem::recursive_directory_iterator("."))
        SetAttributes(entry.path().string(), FILE_ATTRIBUTE_NORMAL);
}

} // namespace obrin::test
