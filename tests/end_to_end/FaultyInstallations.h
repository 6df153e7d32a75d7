// Installations with one fault each: how it is made, and what the checker finds.
#pragma once

#include "end_to_end/MenuTrial.h"

#include <string>
#include <vector>

namespace obrin::test {

/// A finding without its consequence and remedy, which are words for the reader alone.
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
    void (*breakIt)();                  ///< a sound installation, the current folder
    std::vector<ExpectedFinding> added; ///< sorted by place and problem
    bool menuIsTried = true;            ///< and not the checker alone
};

/// By what the fault is in.
std::vector<FaultyInstallation> FaultyMenuFiles();
std::vector<FaultyInstallation> RememberedSystems();
std::vector<FaultyInstallation> FaultyFiles();
std::vector<FaultyInstallation> FaultySettings();

/// Lets go of files that an installation holds open, and makes everything in it writable and visible.
void EndFaults();

} // namespace obrin::test
