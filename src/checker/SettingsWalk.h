// Checks the settings files of programs, below the folder that the variable "TesselTemp" names.
#pragma once

#include "checker/Finding.h"
#include "common/Text.h"
#include "menu/MenuDefinition.h"

#include <map>
#include <set>
#include <string>

namespace obrin {

/// Predicts what the Properties dialog does for each program. Makes no folder and no file.
class SettingsWalk {
public:
    SettingsWalk();

    /// Checks the variable itself, and the folder that all settings files need.
    void CheckTemporaryFolder();
    /// Checks the settings file of each program of a menu file.
    void CheckPrograms(const std::string& menuFile, const MenuDefinition& definition);

    Findings findings;

private:
    void CheckProgram(const Place& place, const std::string& key);
    void CheckSettingsFile(const std::string& path);
    bool IsUsable(const std::string& folder);

    std::string temporaryFolder;
    LeadByteTest isLeadByte;
    std::string whyUnusable;            // why the variable's value cannot be used; empty if it can
    std::map<std::string, bool> usable; // whether a folder (in capitals) can be used
    std::set<std::string> checked;      // settings files in capitals
};

} // namespace obrin
