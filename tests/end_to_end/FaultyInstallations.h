// Installations with one change each, most of them faults: how each is made, and what the checker finds.
#pragma once

#include "end_to_end/MenuTrial.h"

#include <string>
#include <vector>

namespace obrin::test {

/// A finding without its consequence and remedy.
struct ExpectedFinding {
    std::string place; ///< "FILE" or "FILE:LINE", HERE for the current folder
    Effect effect;
    std::string problem;

    bool operator==(const ExpectedFinding&) const = default;
    friend void PrintTo(const ExpectedFinding& finding, std::ostream* output) {
        *output << finding.place << ": " << finding.problem << ", ";
        PrintTo(finding.effect, output);
    }
};

struct FaultyInstallation {
    const char* name;
    void (*makeFault)();                   ///< changes the sound installation in the current folder
    std::vector<ExpectedFinding> expected; ///< sorted by place and problem
    bool runsCheckerOnly = false;          ///< the menu is not tried
};

/// Each function lists the faults of one kind of file or value.
std::vector<FaultyInstallation> FaultyMenuFiles();
std::vector<FaultyInstallation> RememberedSystems();
std::vector<FaultyInstallation> FaultyFiles();
std::vector<FaultyInstallation> FaultySettings();

/// Closes the files that a fault holds open, and makes everything in the current folder writable and visible.
void ReleaseFiles();

} // namespace obrin::test
