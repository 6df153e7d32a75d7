#include "checker/PathChecks.h"

#include "checker/Access.h"
#include "checker/FolderWalk.h"
#include "checker/MenuFileRules.h"
#include "checker/SettingsWalk.h"
#include "platform/Failure.h"
#include "platform/Folder.h"
#include "platform/Workstation.h"

#include <algorithm>
#include <iterator>

namespace obrin {

namespace {

bool IsFolder(const std::string& path) {
    return path.empty() || FolderExists(path);
}

// Returns the menu files of a path, whose last part may hold wildcards.
std::vector<FoundMenuFile> FindMenuFiles(const std::string& path) {
    const auto entries = ListMatching(path);
    if (entries.empty())
        throw RunTimeError(ERROR_FILE_NOT_FOUND, path);
    const auto backslash = FindLastCharacter(path, '\\', CodePageLeadByteTest());
    const auto nameStart =
        std::max({backslash + 1, path.rfind('/') + 1, path.rfind(':') + 1}); // npos + 1 is 0
    std::vector<FoundMenuFile> files;
    for (const FolderEntry& entry : entries) {
        if (!entry.isFolder && IsMenuFileNameInAnyCase(entry.name))
            files.push_back({path.substr(0, nameStart) + entry.name, true});
    }
    if (files.empty())
        throw RunTimeError(PlatformError::InvalidData, path + " is no menu file: its name must end in .mnu");
    return files;
}

// The menu does not show this system here, but it may on other workstations.
void MakeWarning(Finding& finding) {
    if (!IsError(finding))
        return;
    finding.effect = Effect::None;
    finding.consequence = "the menu ends with an error on a workstation that shows this system";
}

void CheckContents(const FoundMenuFile& file, bool withTree, SettingsWalk& settings, CheckResult& result) {
    const CodePage codePage{.isLeadByte = CodePageLeadByteTest(), .isUtf8 = GetACP() == CP_UTF8};
    Findings findings;
    if (const auto bytes = ReadOrAddFinding(findings, Effect::EndsEveryStart, file.path)) {
        const MenuDefinition definition = ParseMenuDefinition(*bytes, codePage.isLeadByte);
        Add(findings, CheckMenuFile(file.path, *bytes, definition, codePage));
        settings.CheckPrograms(file.path, definition);
        if (withTree)
            result.trees +=
                ReplaceControlCharacters(file.path) + ": " + FormatMenuTree(definition, codePage.isLeadByte);
    }
    if (!file.isShown)
        std::ranges::for_each(findings, MakeWarning);
    Add(result.findings, std::move(findings));
}

} // namespace

CheckResult CheckPaths(const std::vector<std::string>& paths, bool withTrees, const Progress& progress) {
    CheckResult result;
    SettingsWalk settings;
    std::vector<FoundMenuFile> menuFiles;
    for (const auto& path : paths) {
        try {
            if (IsFolder(path)) {
                auto walk = WalkFolder(path);
                Add(result.findings, std::move(walk.findings));
                std::ranges::move(walk.menuFiles, std::back_inserter(menuFiles));
            } else {
                std::ranges::move(FindMenuFiles(path), std::back_inserter(menuFiles));
            }
        } catch (const RunTimeError& error) {
            result.failures.push_back(std::string(error.what()) + ": " + PlatformText(error.Code()));
        }
    }
    if (std::ranges::any_of(paths, IsFolder))
        settings.CheckTemporaryFolder();
    for (const FoundMenuFile& file : menuFiles) {
        CheckContents(file, withTrees, settings, result);
        progress(++result.menuFileCount, menuFiles.size());
    }
    Add(result.findings, std::move(settings.findings));
    return result;
}

} // namespace obrin
