#include "checker/SettingsWalk.h"

#include "checker/Access.h"
#include "checker/MenuFileRules.h"
#include "common/Installation.h"
#include "platform/Failure.h"
#include "platform/Folder.h"
#include "platform/Workstation.h"
#include "settings/ProgramSettings.h"

namespace obrin {

namespace {

bool HasDriveOrShare(const std::string& path) {
    return path.starts_with("\\\\") ||
           (path.size() > 2 && path[1] == ':' && (path[2] == '\\' || path[2] == '/'));
}

// The menu first writes a temporary file beside the settings file, with a longer name.
bool IsTooLong(const std::string& settingsPath) {
    constexpr std::size_t ending = std::string_view(".1234567890.tmp").size();
    return settingsPath.size() >= MAX_PATH || FullPath(settingsPath).size() + ending >= MAX_PATH;
}

// Returns the parent of a folder; both end with "\". Returns an empty text for a drive or a server, which the
// dialog does not make.
std::string ParentOf(const std::string& folder, LeadByteTest isLeadByte) {
    const std::string_view name = std::string_view(folder).substr(0, folder.size() - 1);
    const auto end = FindLastCharacter(name, '\\', isLeadByte) + 1; // npos + 1 is 0
    return folder.starts_with("\\\\") && end <= 2 ? "" : folder.substr(0, end);
}

} // namespace

SettingsWalk::SettingsWalk()
    : temporaryFolder(EnvironmentVariable(temporaryFolderVariable))
    , isLeadByte(CodePageLeadByteTest()) {
    const std::string base = temporaryFolder + settingsFolder;
    whyUnusable = FindFileNameFault(HasDriveOrShare(temporaryFolder) ? base.substr(2) : base, isLeadByte);
    if (whyUnusable.empty() && IsTooLong(base))
        whyUnusable = "is too long";
}

void SettingsWalk::CheckTemporaryFolder() {
    if (temporaryFolder.empty())
        Add(findings, Effect::None, {temporaryFolderVariable},
            {"this variable is not set here", "set it on every workstation"},
            "the Properties dialog keeps settings in \\Ini of the current drive, or ends the menu with an "
            "error where that cannot be written");
    else if (!HasDriveOrShare(temporaryFolder))
        Add(findings, Effect::None, {temporaryFolderVariable},
            {"this variable holds no drive or share: " + temporaryFolder,
             "give it the whole path of a folder"},
            "settings lie in another place for each folder that the menu is started in");
    if (whyUnusable.empty())
        IsUsable(temporaryFolder + settingsFolder);
    else
        Add(findings, Effect::EndsProperties, {temporaryFolderVariable},
            {"this variable leads to " + Shorten(temporaryFolder, isLeadByte) + ", which " + whyUnusable,
             "correct the variable, without quotation marks"});
}

void SettingsWalk::CheckPrograms(const std::string& menuFile, const MenuDefinition& definition) {
    for (std::size_t i = 0; i < definition.entries.size() && whyUnusable.empty(); ++i) {
        if (const std::string& key = definition.entries[i].key; !key.empty())
            CheckProgram({menuFile, LineOfEntry(i)}, key);
    }
}

void SettingsWalk::CheckProgram(const Place& place, const std::string& key) {
    const std::string path = SettingsPath(temporaryFolder, key);
    const std::string folder = path.substr(0, FindLastCharacter(path, '\\', isLeadByte) + 1);
    const auto slash = key.find('/') == std::string::npos ? std::string::npos : path.rfind('/');
    if (IsTooLong(path))
        Add(findings, Effect::EndsProperties, place,
            {"the key " + Shorten(key, isLeadByte) + " makes the path of its settings file too long",
             "shorten the key, or the path in TesselTemp"});
    // Windows takes "/" as a separator, too, but the dialog makes only the folders in front of a "\".
    else if (slash != std::string::npos && !FolderExists(path.substr(0, slash)))
        Add(findings, Effect::EndsProperties, place,
            {"the key " + Shorten(key, isLeadByte) +
                 " leads to a folder that is missing, and the menu makes only folders in front of a \"\\\"",
             "write \"\\\" instead of \"/\""});
    else if (IsUsable(folder) && checked.insert(UpperCase(path)).second)
        CheckSettingsFile(path);
}

void SettingsWalk::CheckSettingsFile(const std::string& path) {
    if (IsMissing(path))
        return;
    const auto bytes = ReadOrAddFinding(findings, Effect::EndsProperties, path);
    if (!bytes)
        return;
    try {
        ParseSettings(*bytes, "not a settings file");
    } catch (const RunTimeError& error) {
        Add(findings, Effect::EndsProperties, {path},
            {error.what(), "remove the file, and the dialog begins with the defaults"});
        return;
    }
    if (const auto trouble = FindReplaceTrouble(path))
        Add(findings, Effect::EndsProperties, {path}, *trouble,
            "OK and Apply in the Properties dialog end the menu with an error");
}

// Returns whether the dialog can use or make a folder. If not, adds a finding on what prevents it.
bool SettingsWalk::IsUsable(const std::string& folder) {
    const auto [known, isNew] = usable.try_emplace(UpperCase(folder), false);
    if (!isNew)
        return known->second;
    const std::string parent = ParentOf(folder, isLeadByte);
    const bool isFile = FolderExists(parent) && MayBeFile(folder.substr(0, folder.size() - 1));
    if (!parent.empty() && !isFile && !FolderExists(folder))
        return known->second = IsUsable(parent); // the dialog then makes this one
    const auto trouble = FindFolderTrouble(folder);
    if (trouble && folder.size() <= temporaryFolder.size() + 1)
        Add(findings, Effect::EndsProperties, {temporaryFolderVariable},
            MakeVariableTrouble(temporaryFolder, *trouble));
    else if (trouble)
        Add(findings, Effect::EndsProperties, {folder}, *trouble);
    return known->second = !trouble;
}

} // namespace obrin
