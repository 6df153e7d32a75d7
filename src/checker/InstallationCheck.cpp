#include "checker/InstallationCheck.h"

#include "checker/Access.h"
#include "checker/FolderCheck.h"
#include "checker/MenuFileChecks.h"
#include "platform/Failure.h"
#include "platform/File.h"
#include "platform/Folder.h"
#include "platform/Workstation.h"
#include "settings/ProgramSettings.h"

#include <iterator>
#include <map>

namespace obrin {

namespace {

void Append(std::vector<Finding>& findings, std::vector<Finding> more) {
    findings.insert(findings.end(), std::make_move_iterator(more.begin()),
                    std::make_move_iterator(more.end()));
}

// What the Properties dialog makes of a program's settings file; empty when it can show it.
std::string WhySettingsUnreadable(const std::string& path) {
    try {
        if (FileExists(path))
            ParseSettings(ReadFileBytes(path), "a program's settings");
        return FolderExists(path) ? "a folder of this name is in the way" : "";
    } catch (const RunTimeError& error) {
        const bool read = error.Code() == static_cast<std::uint32_t>(PlatformError::InvalidData);
        return read ? error.what() : PlatformText(error.Code());
    }
}

class Checks {
public:
    explicit Checks(bool withTrees)
        : wishes{.keys = FolderExists(temporaryFolder + "\\Ini"), .tree = withTrees} {}

    void Add(const std::string& path) {
        if (path.empty() || FolderExists(path)) {
            installations = true;
            auto [findings, files] = CheckFolder(path);
            Append(result.findings, std::move(findings));
            menuFiles.insert(menuFiles.end(), files.begin(), files.end());
        } else if (FileExists(path)) {
            const auto entry = FindEntry(path);
            if (const auto reason = entry ? WhyNotListed(*entry) : ""; !reason.empty())
                Warn(path, reason);
            menuFiles.push_back(path);
        } else {
            throw RunTimeError(ERROR_FILE_NOT_FOUND, path);
        }
    }

    CheckResult Finish(CheckProgress& progress) {
        result.menuFiles = progress.all = menuFiles.size();
        std::map<std::string, std::string> settings; // paths: the same for the file system, and as shown
        auto checks = CheckMenuFiles(menuFiles, wishes, progress);
        for (std::size_t i = 0; i < checks.size(); ++i) {
            for (auto& finding : checks[i].findings)
                finding.file = menuFiles[i];
            Append(result.findings, std::move(checks[i].findings));
            if (wishes.tree)
                result.trees.append(menuFiles[i])
                    .append(checks[i].tree.empty() ? ":\r\n" : ": ")
                    .append(checks[i].tree);
            for (const auto& key : checks[i].keys) {
                const std::string path = SettingsPath(temporaryFolder, key);
                settings.try_emplace(UpperCase(path), path);
            }
        }
        if (installations)
            CheckTemporaryFolder();
        for (const auto& [comparable, path] : settings)
            CheckSettings(path);
        return std::move(result);
    }

private:
    void Warn(const std::string& path, std::string text) {
        result.findings.push_back(
            {.kind = Finding::Kind::Warning, .line = 0, .text = std::move(text), .file = path});
    }

    // Missing folders of a path are made.
    void CheckTemporaryFolder() {
        if (temporaryFolder.empty())
            Warn("TesselTemp",
                 "this variable is not set here: the Properties dialog keeps settings in \\Ini of the "
                 "drive at hand, or ends the menu with an error; set it on every workstation");
        else if (const auto reason = FolderExists(temporaryFolder) ? WhyNoFilesIn(temporaryFolder) : "";
                 !reason.empty())
            Warn(temporaryFolder, "cannot be used for new files (" + reason +
                                      "): the Properties dialog ends the menu with an error; give the "
                                      "operators the right to modify it");
    }

    void CheckSettings(const std::string& path) {
        if (const auto reason = WhySettingsUnreadable(path); !reason.empty())
            Warn(path,
                 reason +
                     ": the Properties dialog ends the menu with an error; remove the file, and the dialog "
                     "begins with the defaults");
    }

    std::string temporaryFolder = EnvironmentVariable("TesselTemp");
    MenuWishes wishes;
    bool installations = false;         // and not only files
    std::vector<std::string> menuFiles; // paths
    CheckResult result;
};

} // namespace

CheckResult CheckPaths(const std::vector<std::string>& paths, bool withTrees, CheckProgress& progress) {
    Checks checks(withTrees);
    for (const auto& path : paths)
        checks.Add(path);
    return checks.Finish(progress);
}

} // namespace obrin
