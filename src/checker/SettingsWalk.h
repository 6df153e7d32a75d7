// The settings files of programs below the folder of the variable "TesselTemp".
#pragma once

#include "checker/Finding.h"
#include "common/Text.h"
#include "menu/MenuDefinition.h"

#include <set>
#include <string>
#include <unordered_map>

namespace obrin {

/// Predicts what the Properties dialog does for each program. Makes no folder and no file.
class SettingsWalk {
public:
    SettingsWalk();

    /// The variable itself, and the folders that all settings files need.
    void CheckTemporaryFolder();
    void CheckPrograms(const std::string& menuFile, const MenuDefinition& definition);

    Findings findings;

private:
    struct Folder {
        bool isMissing = false;      ///< also when the dialog has made what it makes
        std::set<std::string> files; ///< in capitals
    };

    const Folder& FolderOf(const std::string& settingsPath);
    Folder Examine(const std::string& folder, const std::string& settingsPath);
    void CheckProgram(const std::string& menuFile, int line, const std::string& key);
    void CheckSettingsFile(const std::string& path);
    void ReportFolder(const std::string& folder, unsigned long error);

    std::string temporaryFolder;
    LeadByteTest isLeadByte;
    std::string whyUnusable; // the variable's value, for all programs
    std::size_t longestPath; // of a settings file as the dialog names it, from the variable's value on
    std::unordered_map<std::string, Folder> folders;
    std::set<std::string> reported; // folders and files
};

} // namespace obrin
