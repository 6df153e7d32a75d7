// Puts this workstation's drive line into the text of the host's configuration, in two passes.
#pragma once

#include "common/Text.h"

#include <string>
#include <string_view>

namespace obrin {

/// Pass 1: empties every line that begins with "Drive" in any case. All lines of the result end with CR LF.
std::string BlankDriveLines(std::string_view configuration, UpperCaser upperCase);

/// Pass 2: writes the drive line, such as "Drive S,C:\HOST,X,\" for the folder C:\HOST, and then the lines of
/// the result of pass 1 without the blank ones. `shortFolder` may be empty.
std::string AddDriveLine(std::string_view shortFolder, std::string_view blankedConfiguration);

} // namespace obrin
