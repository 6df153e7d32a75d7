// The texts of the about box.
#pragma once

#include <string>

namespace obrin {

struct Version {
    int major, minor, revision;
};

/// Returns the version of this program.
Version ProgramVersion();

/// Returns a text like "Version 2.0.38", without leading zeros.
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
