// Installations with one fault each: how it is made, and what the checker says of it.
#pragma once

#include <string>
#include <vector>

namespace obrin::test {

struct FaultyInstallation {
    const char* name;
    void (*breakIt)();              ///< a sound installation, the current folder
    std::vector<std::string> added; ///< lines of the report, HERE for the current folder
    bool menuIsTried = true;        ///< and not the checker alone
};

/// By what the fault is in.
std::vector<FaultyInstallation> FaultyMenuFiles();
std::vector<FaultyInstallation> RememberedSystems();
std::vector<FaultyInstallation> FaultyFiles();
std::vector<FaultyInstallation> FaultySettings();

/// Lets go of files that an installation holds open, and makes everything in it writable and visible.
void EndFaults();

} // namespace obrin::test
