#include "checker/SettingsWalk.h"

#include "checker/Access.h"
#include "checker/MenuFileRules.h"
#include "common/Installation.h"
#include "platform/Failure.h"
#include "platform/Folder.h"
#include "platform/Workstation.h"
#include "settings/FrameWork.h"
#include "settings/ProgramSettings.h"

#include <algorithm>

namespace obrin {

namespace {

// The folder in which the platform looks for a path, with its separator; empty for the current folder. Other
// than for the dialog's walk, "/" separates as well.
std::string ParentOf(const std::string& path, LeadByteTest isLeadByte) {
    const std::string_view name = std::string_view(path).substr(0, path.size() - 1); // without a last "\"
    const auto backslash = FindLastCharacter(name, '\\', isLeadByte), slash = name.rfind('/');
    auto end = std::max(backslash + 1, slash + 1); // npos + 1 is 0
    while (end > 1 && path[end - 1] == '/' && (path[end - 2] == '\\' || path[end - 2] == '/'))
        --end; // several separators are one
    return path.substr(0, end);
}

void RequireNewFilesIn(const std::string& folder) {
    if (const DWORD error = ErrorOfNewFilesIn(folder); error != ERROR_SUCCESS)
        throw RunTimeError(error, folder);
}

bool HasDrive(const std::string& path) {
    return path.starts_with("\\\\") ||
           (path.size() > 2 && path[1] == ':' && (path[2] == '\\' || path[2] == '/'));
}

} // namespace

SettingsWalk::SettingsWalk()
    : temporaryFolder(EnvironmentVariable(temporaryFolderVariable))
    , isLeadByte(CodePageLeadByteTest()) {
    // New contents lie beside the file at first, under its name and such an ending.
    constexpr std::size_t ending = std::string_view(".1234567890.tmp").size();
    const std::string base = temporaryFolder + settingsFolder;
    whyUnusable = WhyNoFileName(HasDrive(temporaryFolder) ? base.substr(2) : base, isLeadByte);
    try {
        longestPath = base.size() + MAX_PATH - 1;
        longestPath -= std::min(longestPath, FullPath(base).size() + ending);
    } catch (const RunTimeError&) {
        longestPath = 0;
    }
    if (longestPath < base.size() && whyUnusable.empty())
        whyUnusable = "is too long";
}

void SettingsWalk::CheckTemporaryFolder() {
    if (temporaryFolder.empty())
        Add(findings, Effect::None, {temporaryFolderVariable},
            {"this variable is not set here", "set it on every workstation"},
            "the Properties dialog keeps settings in \\Ini of the current drive, or ends the menu with an "
            "error where that cannot be written");
    else if (!HasDrive(temporaryFolder))
        Add(findings, Effect::None, {temporaryFolderVariable},
            {"this variable holds no drive or share: " + temporaryFolder,
             "give it the whole path of a folder"},
            "settings lie in another place for each folder that the menu is started in");
    if (whyUnusable.empty())
        FolderOf(SettingsPath(temporaryFolder, ""));
    else
        Add(findings, Effect::EndsProperties, {temporaryFolderVariable},
            {"this variable leads to " + Quoted(temporaryFolder, isLeadByte) + ", which " + whyUnusable,
             "correct the variable, without quotation marks"});
}

void SettingsWalk::CheckPrograms(const std::string& menuFile, const MenuDefinition& definition) {
    for (std::size_t i = 0; i < definition.entries.size() && whyUnusable.empty(); ++i) {
        if (const std::string& key = definition.entries[i].key; !key.empty())
            CheckProgram(menuFile, LineOfEntry(i), key);
    }
}

void SettingsWalk::CheckProgram(const std::string& menuFile, int line, const std::string& key) {
    const std::string path = SettingsPath(temporaryFolder, key);
    const auto report = [&](const char* problem, const char* remedy) {
        Add(findings, Effect::EndsProperties, {menuFile, line},
            {"the key " + Quoted(key, isLeadByte) + problem, remedy});
    };
    if (path.size() > longestPath) {
        report(" makes the path of its settings file too long", "shorten the key, or the path in TesselTemp");
        return;
    }
    const Folder& folder = FolderOf(path);
    if (folder.isMissing)
        report(" leads to a folder that is missing, and only those at \"\\\" are made",
               "write \"\\\" in the place of \"/\"");
    else if (!folder.files.empty() &&
             folder.files.contains(UpperCase(path.substr(ParentOf(path, isLeadByte).size()))))
        CheckSettingsFile(path);
}

// Many programs share a folder.
const SettingsWalk::Folder& SettingsWalk::FolderOf(const std::string& settingsPath) {
    const std::string folder = ParentOf(settingsPath, isLeadByte);
    const auto [place, isNew] = folders.try_emplace(folder);
    if (isNew)
        place->second = Examine(folder, settingsPath);
    return place->second;
}

// Follows the dialog on its way along the path, and notes the folders that it would make.
SettingsWalk::Folder SettingsWalk::Examine(const std::string& folder, const std::string& settingsPath) {
    std::set<std::string> made;
    const auto exists = [&](const std::string& path) {
        return path.empty() || made.contains(path) || FolderExists(path);
    };
    std::string troubled = folder;
    const auto make = [&](const std::string& path) {
        const std::string parent = ParentOf(path, isLeadByte);
        troubled = exists(parent) ? path : parent;
        if (!exists(parent))
            throw RunTimeError(ERROR_PATH_NOT_FOUND, path);
        if (MayBeFile(path.substr(0, path.size() - 1)))
            throw RunTimeError(ERROR_ALREADY_EXISTS, path);
        if (!made.contains(parent))
            RequireNewFilesIn(parent.empty() ? "." : parent);
        made.insert(path);
    };
    Folder found;
    try {
        EnsurePath(settingsPath, true, {.exists = exists, .create = make, .isLeadByte = isLeadByte});
        found.isMissing = !exists(folder);
        if (found.isMissing || made.contains(folder))
            return found;
        troubled = folder;
        RequireNewFilesIn(folder);
        for (const FolderEntry& entry : ListFolder(folder))
            found.files.insert(UpperCase(entry.name));
    } catch (const RunTimeError& error) {
        ReportFolder(troubled, error.Code());
    }
    return found;
}

void SettingsWalk::ReportFolder(const std::string& folder, unsigned long error) {
    if (!reported.insert(UpperCase(folder)).second)
        return;
    const std::string reason = " (" + PlatformText(error) + ")";
    if (folder.size() <= temporaryFolder.size() + 1)
        Add(findings, Effect::EndsProperties, {temporaryFolderVariable},
            {"this variable leads to " + temporaryFolder + ", which cannot be used" + reason,
             "make that folder, or correct the variable, without quotation marks"});
    else
        Add(findings, Effect::EndsProperties, {folder},
            {"this folder cannot be made or used" + reason,
             error == ERROR_ALREADY_EXISTS ? "remove the file of this name"
                                           : "give the operators the right to modify the one above it"});
}

void SettingsWalk::CheckSettingsFile(const std::string& path) {
    if (!reported.insert(UpperCase(path)).second)
        return;
    const auto bytes = ReadOrAdd(findings, Effect::EndsProperties, path);
    if (!bytes)
        return;
    try {
        ParseSettings(*bytes, "no settings");
    } catch (const RunTimeError& error) {
        Add(findings, Effect::EndsProperties, {path},
            {error.what(), "remove the file, and the dialog begins with the defaults"});
        return;
    }
    if (const auto trouble = ReplaceTrouble(path))
        Add(findings, Effect::EndsProperties, {path}, *trouble,
            "OK and Apply in the Properties dialog end the menu with an error");
}

} // namespace obrin
