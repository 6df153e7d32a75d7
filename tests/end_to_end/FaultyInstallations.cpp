#include "end_to_end/FaultyInstallations.h"

#include "common/Installation.h"
#include "end_to_end/Installation.h"

namespace obrin::test {
namespace {

using namespace std::string_literals;

const std::string atStart = ": the menu ends with an error at every start; ";
const std::string whenShown = ": the menu ends with an error when it shows this system; ";
const std::string whenRun = ": the menu ends with an error when an operator runs a program; ";
const std::string inProperties = ": the Properties dialog ends the menu with an error; ";

const std::string noHeading = "there is no heading one level above this entry";
const std::string removeMark = "remove a \">\", or put the missing heading above";
const std::string isUtf8 = ": the menu shows other letters than are meant; save the file as ANSI text";
const std::string oneOfTwo = "remove one of the two";
const std::string useLetters = "name the program by a path from the host's folder on, of letters and digits";
const std::string notListed = ": the menu does not list this system; ";
const std::string closeProgram = "close the program that keeps it open";
const std::string removeFolder = "remove the folder";
const std::string putLibrary = "put the library there that came with ObrinMenu.exe";
const std::string waitsForHost = ": the menu waits for the host for ever; ";
const std::string noCopy = ": the update of a workstation says Complete without copying ";

std::vector<HANDLE> held;

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

// Another program has the file open, and shares it so.
void Hold(const std::string& path, DWORD sharing = 0) {
    held.push_back(CreateFileA(path.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr));
}

void Set(const char* variable, const std::string& value) {
    SetEnvironmentVariableA(variable, value.c_str());
}

void AddUser(const std::string& name, int wsid) {
    Write(userRecordsFile,
          ReadFileBytes(userRecordsFile) + UserWsidRecord(name, static_cast<std::int16_t>(wsid)));
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

std::string Sharing() {
    return "cannot be read (" + PlatformText(ERROR_SHARING_VIOLATION) + ")";
}

std::string Settings(const std::string& name) {
    return "HERE\\Temp\\Ini\\" + name;
}

constexpr bool checkerOnly = false; // not the menu: it works, or writes where it must not in a test
constexpr bool is64 = sizeof(void*) == 8;
const std::string ownBits = is64 ? "64" : "32";

} // namespace

std::vector<FaultyInstallation> FaultyMenuFiles() {
    return {
        {"an empty file",
         [] { WriteMenu(""); },
         {"UB.mnu: error: the file has no header line" + atStart +
          "write the system's title into its first line"}},
        {"an entry before any heading",
         [] { WriteMenu("T\r\n>A^K"); },
         {"UB.mnu:2: error: " + noHeading + whenShown + removeMark}},
        {"a program two levels below its heading",
         [] { WriteMenu("T\r\nA\r\n>>B^K\r\n>C^L"); },
         {"UB.mnu:3: error: " + noHeading + whenShown + removeMark}},
        {"a program below a program",
         [] { WriteMenu("T\r\nA^K\r\n>B^L"); },
         {"UB.mnu:3: error: " + noHeading + whenShown + removeMark}},
        {"forty thousand levels",
         [] { WriteMenu("T\r\n" + std::string(40'000, '>') + "A^K"); },
         {"UB.mnu:2: error: " + noHeading + whenShown + removeMark}},
        {"an empty line above a deeper entry",
         [] { WriteMenu("T\r\nA\r\n>B\r\n\r\n>>C^K\r\nD\r\n>E^L"); },
         {"UB.mnu:2: warning: the heading \"A\" holds no program: operators open it in vain; put "
          "programs below it, or remove it",
          "UB.mnu:4: warning: an empty line: the menu shows it as a heading without text; remove it",
          "UB.mnu:5: error: " + noHeading + ": the empty line 4 has closed the headings above it" +
              whenShown + removeMark}},
        {"a key twice",
         [] { WriteMenu("T\r\nA^K\r\nB^K"); },
         {"UB.mnu:3: error: the key K is there already, in line 2" + whenShown + oneOfTwo}},
        {"a key that is a number",
         [] { WriteMenu("T\r\nA^0912^x"); },
         {"UB.mnu:2: error: the key 0912 is a number" + whenShown + "name the program with its folder"}},
        {"one entry too many",
         [] {
             std::string entries;
             for (int i = 0; i < 32'768; ++i)
                 entries += "\rA^";
             WriteMenu("T" + entries);
         },
         {"UB.mnu:32769: error: more than 32,767 entries" + whenShown +
          "divide the system into several; from this line on, nothing has been checked"}},
        {"keys that differ in case, no keys, a lone CR", [] { WriteMenu("T\rA^k\rB^K\rC^\rD^"); }, {}},
        {"nothing but a title", [] { WriteMenu("T"); }, {}},
        {"an empty title",
         [] { WriteMenu(" ^T\r\nA^K"); },
         {"UB.mnu:1: warning: the title is empty: the System List shows this system without a name; write it "
          "in front of the first \"^\""}},
        {"a key with a character of no file name",
         [] { WriteMenu("T\r\nA^a?"); },
         {"UB.mnu:2: warning: the key a? holds the character ?" + inProperties + useLetters}},
        {"a key with a drive",
         [] { WriteMenu("T\r\nA^C:\\K"); },
         {"UB.mnu:2: warning: the key C:\\K holds the character :" + inProperties + useLetters},
         checkerOnly}, // Wine makes a folder of this name
        {"a key with a control character",
         [] { WriteMenu("T\r\nA^K\x1B[2J"); },
         {"UB.mnu:2: warning: the key K?[2J holds a control character" + inProperties + useLetters}},
        {"a key that is a device",
         [] { WriteMenu("T\r\nA^Core\\nul"); },
         {"UB.mnu:2: warning: the key Core\\nul names a device of Windows (nul)" + inProperties +
          useLetters}},
        {"a key that leads outside",
         [] { WriteMenu("T\r\nA^..\\K"); },
         {"UB.mnu:2: warning: the key ..\\K holds \"..\": the program's settings file may lie outside of the "
          "folder for these; write the program's path without it"}},
        {"a second system with a fault",
         [] { Write("ZZ.mnu", "T\r\n>A^K"); },
         {"Help\\ZZ\\Index.html: warning: missing: System Help does not open the document; put it there",
          "ZZ.mnu:2: error: " + noHeading + whenShown + removeMark}},
        {"a hidden system with a fault",
         [] {
             Write("ZZ.mnu", "T\r\n>A^K");
             SetAttributes("ZZ.mnu", FILE_ATTRIBUTE_HIDDEN);
         },
         {"ZZ.mnu: warning: hidden or a system file" + notListed + "take the attribute away (attrib -h -s)",
          "ZZ.mnu:2: warning: " + noHeading +
              ": the menu ends with an error on a workstation that shows this system; " + removeMark}},
        {"a system marked as a system file, which another program holds",
         [] {
             Write("ZZ.mnu", "T");
             SetAttributes("ZZ.mnu", FILE_ATTRIBUTE_SYSTEM);
             Hold("ZZ.mnu");
         },
         {"ZZ.mnu: warning: hidden or a system file" + notListed + "take the attribute away (attrib -h -s)",
          "ZZ.mnu: warning: " + Sharing() +
              ": the menu ends with an error on a workstation that shows this system; " + closeProgram}},
        {"a name in capitals",
         [] { Write("ZZ.MNU", "T"); },
         {"ZZ.MNU: warning: the name does not end in .mnu in small letters" + notListed + "rename the file"}},
        {"a folder with the name of a menu file",
         [] { MakeFolder("ZZ.mnu"); },
         {"ZZ.mnu: warning: a folder" + notListed + "remove it, or put the menu file in its place"}},
        {"no menu file",
         [] { Delete("UB.mnu"); },
         {".: error: there is no menu file (*.mnu) here" + atStart +
          "start the menu in the host's folder, and put the systems' menu files there"}},
        {"a menu file that another program holds",
         [] { Hold("UB.mnu"); },
         {"UB.mnu: error: " + Sharing() + atStart + closeProgram}},
        {"two systems of one code",
         [] { Write("ub2.mnu", "T\r\nA^K"); },
         {"ub2.mnu: warning: the system code ub is that of UB.mnu too: the host starts the same system for "
          "both; rename one file"}},
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
         {"ZZ.mnu: warning: hidden or a system file" + notListed + "take the attribute away (attrib -h -s)",
          "ZZ.mnu:2: error: " + noHeading + whenShown + removeMark}},
        {"a remembered file that is no menu file", [] { Remember("UserWSID.sys"); }, {}},
    };
}

std::vector<FaultyInstallation> FaultyFiles() {
    const std::string isMissing = ": error: missing";
    return {
        {"no configuration",
         [] { Delete(hostConfigurationFile); },
         {"FennConfig.Sys: error: missing: the menu ends at every start with \"Config File Not found!\"; "
          "restore the file, or start the menu in the host's folder"}},
        {"a folder in the place of the configuration",
         [] { PutFolderInPlaceOf(hostConfigurationFile); },
         {"FennConfig.Sys: error: a folder has this name: the menu ends at every start with \"Config File "
          "Not found!\"; " +
          removeFolder}},
        {"a read-only configuration",
         [] { SetAttributes(hostConfigurationFile, FILE_ATTRIBUTE_READONLY); },
         {"FennConfig.Sys: error: read-only: the menu ends with an error at a start that finds another "
          "folder in it; take this attribute away (attrib -r)"}},
        {"a configuration that another program holds",
         [] { Hold(hostConfigurationFile); },
         {"FennConfig.Sys: error: " + Sharing() + atStart + closeProgram}},
        {"a configuration that another program keeps from being replaced",
         [] { Hold(hostConfigurationFile, FILE_SHARE_READ | FILE_SHARE_WRITE); },
         {"FennConfig.Sys: warning: cannot be replaced (" + PlatformText(ERROR_SHARING_VIOLATION) +
          "): the menu writes over it, which a lost connection may cut off in the middle; " + closeProgram}},
        {"no Core",
         [] { Delete(coreFolder); },
         {"Core: error: this folder is missing" + atStart + "make it, with what belongs in it"}},
        {"a file in the place of Core",
         [] { PutFileInPlaceOf(coreFolder); },
         {"Core: error: a file has the name of this folder" + atStart + "remove the file"}},
        {"a folder in the place of the temporary file",
         [] { MakeFolder(temporaryConfigurationFile); },
         {"Core\\TempOut.tmp: error: a folder has this name" + atStart + removeFolder}},
        {"no library", [] { Delete(supportLibraryFile); }, {"Corvel.dll" + isMissing + atStart + putLibrary}},
        {"a library without contents",
         [] { Write(supportLibraryFile, ""); },
         {"Corvel.dll: error: cannot be used (Corvel.dll is not a " + ownBits +
          "-bit library. Use the one that came with ObrinMenu.exe: " + PlatformText(ERROR_INVALID_DATA) +
          ")" + atStart + putLibrary}},
        {"a library of other bits",
         [] {
             Patch(supportLibraryFile, "PE\0\0"s + (is64 ? "\x64\x86" : "\x4C\x01"),
                   "PE\0\0"s + (is64 ? "\x4C\x01" : "\x64\x86"));
         },
         {"Corvel.dll: error: cannot be used (Corvel.dll is not a " + ownBits +
          "-bit library. Use the one that came with ObrinMenu.exe: " + PlatformText(ERROR_INVALID_DATA) +
          ")" + atStart + putLibrary}},
        {"another library",
         [] { Patch(supportLibraryFile, "\0SetRegValue\0"s, "\0SetRegFalue\0"s); },
         {"Corvel.dll: error: cannot be used (Looking for SetRegValue in Corvel.dll: " +
          PlatformText(ERROR_PROC_NOT_FOUND) + ")" + atStart + putLibrary}},
        {"a library that needs another one",
         [] { Patch(supportLibraryFile, "OLEAUT32.dll", "OLEAUT99.dll"); },
         {"Corvel.dll: error: cannot be used (Loading Corvel.dll: " + PlatformText(ERROR_MOD_NOT_FOUND) +
          ")" + atStart + putLibrary}},
        {"no host", [] { Delete(hostProgram); }, {"Fenn.exe" + isMissing + waitsForHost + "put it there"}},
        {"an empty host",
         [] { Write(hostProgram, ""); },
         {"Fenn.exe: error: not a program that Windows can start" + waitsForHost + "install it again"}},
        {"a folder in the place of the host",
         [] { PutFolderInPlaceOf(hostProgram); },
         {"Fenn.exe: error: a folder has this name" + waitsForHost + removeFolder},
         checkerOnly}, // Windows shows what is in the folder
        {"an empty menu program",
         [] { Write(menuProgram, ""); },
         {"ObrinMenu.exe: error: not a program that Windows can start: the menu does not start; install it "
          "again"},
         checkerOnly},
        {"a picture that is none",
         [] { Write(startupPictureFile, "no picture"); },
         {"Startup.bmp: error: no picture that can be shown (" + PlatformText(ERROR_INVALID_DATA) + ")" +
          atStart + "save the picture as a BMP file, or remove it"}},
        {"a picture that another program holds",
         [] {
             Write(startupPictureFile, Bmp(4, 1));
             Hold(startupPictureFile);
         },
         {"Startup.bmp: error: " + Sharing() + atStart + closeProgram}},
        {"pictures that are not shown",
         [] {
             Write(startupPictureFile, "no picture");
             SetAttributes(startupPictureFile, FILE_ATTRIBUTE_HIDDEN);
         },
         {}},
        {"a folder in the place of the user records",
         [] { PutFolderInPlaceOf(userRecordsFile); },
         {"UserWSID.sys: error: a folder has this name" + atStart + removeFolder}},
        {"user records that another program only lets others read",
         [] { Hold(userRecordsFile, FILE_SHARE_READ); },
         {"UserWSID.sys: error: cannot be written (" + PlatformText(ERROR_SHARING_VIOLATION) + ")" + atStart +
          closeProgram}},
        {"a negative number of this user",
         [] { Write(userRecordsFile, UserWsidRecord(LoginName(), -7)); },
         {"UserWSID.sys: error: record 1 gives the user " + LoginName() +
          " the workstation number -7: the menu of this user waits without a window; remove the record, "
          "and the menu asks"}},
        {"a negative number of another user",
         [] { AddUser("bert", -7); },
         {"UserWSID.sys: error: record 2 gives the user bert the workstation number -7: the menu of this "
          "user waits without a window; remove the record, and the menu asks"}},
        {"two users of one number",
         [] { AddUser("bert", 5); },
         {"UserWSID.sys: warning: the users bert and " + LoginName() +
          " both have the workstation number 5: they cannot work at the same time; remove one's record, and "
          "the menu asks"},
         checkerOnly},
        {"a folder in the place of the register",
         [] { PutFolderInPlaceOf(updateRegisterFile); },
         {"Updated.txt: error: a folder has this name" + whenRun + removeFolder}},
        {"a register that another program holds",
         [] { Hold(updateRegisterFile); },
         {"Updated.txt: error: " + Sharing() + whenRun + closeProgram}},
        {"a read-only register",
         [] { SetAttributes(updateRegisterFile, FILE_ATTRIBUTE_READONLY); },
         {"Updated.txt: error: read-only" + whenRun + "take this attribute away (attrib -r)"},
         checkerOnly}, // Wine lets some users write it
        {"a register with a part of a record",
         [] { Write(updateRegisterFile, "0050"); },
         {"Updated.txt: warning: the last record is cut off: the next workstation that is updated overwrites "
          "it; cut the file to 3 bytes"}},
        {"a folder in the place of the marker file",
         [] { MakeFolder("Menu 5.txt"); },
         {"Menu 5.txt: error: a folder has this name: the menu of workstation 5 ends with an error at every "
          "start; " +
          removeFolder}},
        {"a folder in the place of another workstation's marker file",
         [] { MakeFolder("Menu 99.txt"); },
         {"Menu 99.txt: error: a folder has this name: the menu of workstation 99 ends with an error at "
          "every "
          "start; " +
          removeFolder}},
        {"a missing program of the update",
         [] { Delete("Tessel\\Exe\\Glass.Exe"); },
         {"Tessel\\Exe\\Glass.Exe: warning: missing" + noCopy + "this program; put it there"},
         checkerOnly},
        {"no programs for the update",
         [] {
             Delete("Tessel");
             Write(updateRegisterFile, "");
         },
         {"Tessel\\Exe: warning: this folder is missing" + noCopy +
          "anything; make it, with what belongs in it"}},
        {"Tessel is not set",
         [] { Set(localHostVariable, ""); },
         {"Tessel: warning: this variable is not set here: the update of a workstation copies to the root of "
          "the current drive; set it on every workstation"},
         checkerOnly},
        {"Tessel leads to a file",
         [] { Set(localHostVariable, "UB.mnu"); },
         {"Tessel: warning: this variable leads to UB.mnu: a file has the name of this folder" + noCopy +
          "anything; remove the file, or correct the variable"},
         checkerOnly},
        {"Tessel is quoted",
         [] { Set(localHostVariable, "\"Local\""); },
         {"Tessel: warning: this variable leads to \"Local\": cannot be used for new files (" +
          PlatformText(ERROR_INVALID_NAME) + ")" + noCopy +
          "anything; give the operators the right to modify it, or correct the variable"},
         checkerOnly},
        {"a folder in the place of a help page",
         [] { PutFolderInPlaceOf("Help\\Index.html"); },
         {"Help\\Index.html: warning: a folder has this name: Core Help does not open the document; " +
          removeFolder},
         checkerOnly},
        {"no shortcut",
         [] { Delete("Obrin-User.url"); },
         {"Obrin-User.url: warning: missing: Obrin User Website does not open the document; put it there"},
         checkerOnly},
        {"hidden files that are written",
         [] {
             SetAttributes(updateRegisterFile, FILE_ATTRIBUTE_HIDDEN);
             SetAttributes(userRecordsFile, FILE_ATTRIBUTE_HIDDEN);
         },
         {}},
    };
}

std::vector<FaultyInstallation> FaultySettings() {
    const std::string leads = "TesselTemp: warning: this variable leads to ";
    const std::string isMissing = ": this folder is missing" + inProperties +
                                  "make it, with what belongs in it, or correct the variable";
    const std::string isFile = "a file has the name of this folder" + inProperties + "remove the file";
    return {
        {"settings that the dialog has saved",
         [] {
             MakeFolder("Temp\\Ini\\Core\\Programs");
             Write("Temp\\Ini\\Core\\Programs\\CSBackup.ini", "Lines=1\r\nUnknown=x=y\r\n");
         },
         {}},
        {"a quoted folder",
         [] { Set(temporaryFolderVariable, "\"" + CurrentFolder() + "\\Temp\""); },
         {"TesselTemp: warning: this variable holds no drive or share: \"HERE\\Temp\": settings lie in "
          "another place for each folder that the menu is started in; give it "
          "the whole path of a folder",
          leads + "\"HERE\\Temp\", which holds the character \"" + inProperties +
              "correct the variable, without quotation marks"}},
        {"a relative folder that is missing",
         [] { Set(temporaryFolderVariable, "Nowhere"); },
         {"TesselTemp: warning: this variable holds no drive or share: Nowhere: settings lie in another "
          "place for each folder that the menu is started in; give it the whole path of a folder",
          leads + "Nowhere" + isMissing}},
        {"a file in the place of the folder",
         [] { Set(temporaryFolderVariable, CurrentFolder() + "\\UB.mnu"); },
         {leads + "HERE\\UB.mnu: " + isFile + ", or correct the variable"}},
        {"a missing drive",
         [] { Set(temporaryFolderVariable, "Q:\\Temp"); },
         {leads + "Q:\\Temp" + isMissing}},
        {"a folder whose path is too long",
         [] { Set(temporaryFolderVariable, "C:\\" + std::string(250, 'x')); },
         {leads + "C:\\" + std::string(197, 'x') + "..., which is too long" + inProperties +
          "correct the variable, without quotation marks"},
         checkerOnly}, // Wine takes longer paths than Windows
        {"a folder with a control character",
         [] { Set(temporaryFolderVariable, CurrentFolder() + "\\a\x01"); },
         {leads + "HERE\\a?, which holds a control character" + inProperties +
          "correct the variable, without quotation marks"}},
        {"settings that a reader holds and lets others replace",
         [] {
             MakeFolder("Temp\\Ini\\Core\\Programs");
             Write("Temp\\Ini\\Core\\Programs\\CSBackup.ini", "Lines=1");
             Hold("Temp\\Ini\\Core\\Programs\\CSBackup.ini", FILE_SHARE_READ | FILE_SHARE_DELETE);
         },
         {}},
        {"a key that is too long",
         [] { WriteMenu("T\r\nA^" + std::string(250, 'x')); },
         {"UB.mnu:2: warning: the key " + std::string(200, 'x') +
          "... makes the path of its settings file too long" + inProperties +
          "shorten the key, or the path in TesselTemp"},
         checkerOnly},
        {"a folder that is made", [] { Set(temporaryFolderVariable, CurrentFolder() + "\\New\\Temp"); }, {}},
        {"a file in the place of Ini",
         [] { Write("Temp\\Ini", "x"); },
         {Settings("") + ": warning: " + isFile}},
        {"a file in the place of a folder of the key",
         [] {
             MakeFolder("Temp\\Ini");
             Write("Temp\\Ini\\Core", "x");
         },
         {Settings("Core\\") + ": warning: " + isFile}},
        {"settings without an equals sign",
         [] {
             MakeFolder("Temp\\Ini\\Core\\Programs");
             Write("Temp\\Ini\\Core\\Programs\\CSBackup.ini", "Lines=1\r\nLines\r\n");
         },
         {Settings("Core\\Programs\\CSBackup.ini") + ": warning: no settings, line 2: there is no \"=\"" +
          inProperties + "remove the file, and the dialog begins with the defaults"}},
        {"a folder in the place of settings",
         [] { MakeFolder("Temp\\Ini\\Core\\Programs\\CSBackup.ini"); },
         {Settings("Core\\Programs\\CSBackup.ini") + ": warning: a folder has this name" + inProperties +
          removeFolder}},
        {"settings that another program holds",
         [] {
             MakeFolder("Temp\\Ini\\Core\\Programs");
             Write("Temp\\Ini\\Core\\Programs\\CSBackup.ini", "Lines=1");
             Hold("Temp\\Ini\\Core\\Programs\\CSBackup.ini");
         },
         {Settings("Core\\Programs\\CSBackup.ini") + ": warning: " + Sharing() + inProperties +
          closeProgram}},
        {"settings that are read-only",
         [] {
             MakeFolder("Temp\\Ini\\Core\\Programs");
             Write("Temp\\Ini\\Core\\Programs\\CSBackup.ini", "Lines=1");
             SetAttributes("Temp\\Ini\\Core\\Programs\\CSBackup.ini", FILE_ATTRIBUTE_READONLY);
         },
         {Settings("Core\\Programs\\CSBackup.ini") +
          ": warning: read-only: OK and Apply in the Properties dialog end the menu with an error; take this "
          "attribute away (attrib -r)"}},
        {"a slash where no folder is",
         [] { WriteMenu("T\r\nA^Core/CSBackup"); },
         {"UB.mnu:2: warning: the key Core/CSBackup leads to a folder that is missing, and only those at "
          "\"\\\" are made" +
          inProperties + "write \"\\\" in the place of \"/\""}},
        {"a slash where a folder is",
         [] {
             MakeFolder("Temp\\Ini\\Core");
             WriteMenu("T\r\nA^Core/CSBackup");
         },
         {}},
    };
}

void EndFaults() {
    for (const HANDLE file : held)
        CloseHandle(file);
    held.clear();
    for (const auto& entry : std::filesystem::recursive_directory_iterator("."))
        SetAttributes(entry.path().string(), FILE_ATTRIBUTE_NORMAL);
}

} // namespace obrin::test
