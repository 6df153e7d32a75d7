#include "checker/PathChecks.h"

#include "checker/Access.h"
#include "checker/FolderWalk.h"
#include "checker/MenuFileRules.h"
#include "checker/SettingsWalk.h"
#include "platform/Failure.h"
#include "platform/File.h"
#include "platform/Folder.h"
#include "platform/Workstation.h"

#include <algorithm>
#include <iterator>

namespace obrin {

namespace {

// The menu files that a path without a folder of that name leads to.
std::vector<FoundMenuFile> FindMenuFiles(const std::string& path) {
    const LeadByteTest isLeadByte = CodePageLeadByteTest();
    const auto nameStart =
        std::max(FindLastCharacter(path, '\\', isLeadByte) + 1, path.rfind('/') + 1); // npos + 1 is 0
    std::vector<FoundMenuFile> files;
    if (path.find_first_of("*?") != std::string::npos) {
        for (const FolderEntry& entry : ListMatching(path)) {
            if (!entry.isFolder && IsMenuFileNameInAnyCase(entry.name))
                files.push_back({path.substr(0, nameStart) + entry.name, true});
        }
    } else if (!FileExists(path)) {
        throw RunTimeError(ERROR_FILE_NOT_FOUND, path);
    } else if (IsMenuFileNameInAnyCase(path.substr(nameStart))) {
        files.push_back({path, true});
    }
    if (files.empty())
        throw RunTimeError(PlatformError::InvalidData, path + " is no menu file: its name must end in .mnu");
    return files;
}

// What a path leads to: an installation, checked but for its menu files, or menu files alone.
FolderFindings Find(const std::string& path) {
    return path.empty() || FolderExists(path)
               ? WalkFolder(path)
               : FolderFindings{.findings = {}, .menuFiles = FindMenuFiles(path)};
}

// The faults of a system that the menu does not show here may stop it on other workstations.
void MakeWarning(Finding& finding) {
    finding.effect = Effect::None;
    finding.consequence = "the menu ends with an error on a workstation that shows this system";
}

void CheckContents(const FoundMenuFile& file, bool withTree, SettingsWalk& settings, CheckResult& result) {
    const auto& [path, isShown] = file;
    const auto bytes = ReadOrAdd(result.findings, Effect::EndsEveryStart, path);
    if (!bytes)
        return;
    const CodePage codePage{.isLeadByte = CodePageLeadByteTest(), .isUtf8 = GetACP() == CP_UTF8};
    const MenuDefinition definition = ParseMenuDefinition(*bytes, codePage.isLeadByte);
    for (Finding& finding : CheckMenuFile(path, *bytes, definition, codePage)) {
        if (!isShown && IsError(finding))
            MakeWarning(finding);
        result.findings.push_back(std::move(finding));
    }
    settings.CheckPrograms(path, definition);
    if (withTree)
        result.trees += OneLine(path) + ": " + MenuTreeText(definition, codePage.isLeadByte);
}

} // namespace

CheckResult CheckPaths(const std::vector<std::string>& paths, bool withTrees, const Progress& progress) {
    CheckResult result;
    SettingsWalk settings;
    std::vector<FoundMenuFile> menuFiles;
    for (const auto& path : paths) {
        try {
            auto found = Find(path);
            std::ranges::move(found.findings, std::back_inserter(result.findings));
            std::ranges::move(found.menuFiles, std::back_inserter(menuFiles));
        } catch (const RunTimeError& error) {
            result.failures.push_back(OneLine(std::string(error.what()) + ": " + PlatformText(error.Code())));
        }
    }
    if (std::ranges::any_of(paths, [](auto& path) { return path.empty() || FolderExists(path); }))
        settings.CheckTemporaryFolder();
    for (const FoundMenuFile& file : menuFiles) {
        progress(result.menuFiles++, menuFiles.size());
        CheckContents(file, withTrees, settings, result);
    }
    std::ranges::move(settings.findings, std::back_inserter(result.findings));
    return result;
}

} // namespace obrin
