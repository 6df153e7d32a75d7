// What the about box says, as values: which version is running, who made it, and under what terms.
#pragma once

#include <string>

namespace obrin {

struct Version {
    int major, minor, revision;
};

/// The version of this program, which also stands in its version resource.
Version ProgramVersion();

/// "Version 2.0.38": plain numbers, although file versions are often written with leading zeros.
std::string VersionText(const Version& version);

constexpr const char* descriptionText =
    "Obrin Software Systems writes and supports business software for offices whose workstations share one "
    "installation: billing, payroll and the ledgers behind them. The Obrin Core System is where their "
    "operators begin: it lists the programs of each system and starts them on the workstation's own host.";

constexpr const char* disclaimerText =
    "Warning: \r\n"
    "This program and the applications that it starts are the property of Obrin Software Systems and are "
    "protected by copyright law.\r\n"
    "The applications may not be distributed without the express permission of Obrin Software Systems.";

} // namespace obrin
