// Folders that live as long as a measurement.
#pragma once

#include "support/ScratchFolder.h"

#include <string>

namespace obrin::bench {

using test::ScratchFolder;

/// A host installation in the current folder: three systems with the same tree, a picture, and a workstation
/// number for the user who runs this. `host` becomes its host program.
class Installation {
public:
    static constexpr int wsid = 5;
    static constexpr const char* system = "UB.mnu";
    static constexpr const char* bare = "bare.exe UB.mnu";            ///< as little as shows a menu
    static constexpr const char* bareWithAll = "bare.exe UB.mnu all"; ///< with the other calls of a start
    static constexpr const char* bareClass = "ObrinBench.Bare";

    explicit Installation(const std::string& host);

private:
    ScratchFolder folder;
};

/// A menu file of `entries` entries behind its header line. A heading holds ten headings, each of these holds
/// programs, up to `programs`; with none of these, all entries are programs at top level.
std::string MenuFileText(const char* title, int entries, int programs);

} // namespace obrin::bench
