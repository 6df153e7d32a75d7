// The two passes that give the host's configuration file this workstation's drive line, as texts.
#pragma once

#include "common/Text.h"

#include <string>
#include <string_view>

namespace obrin {

/// Pass 1: every line kept, but emptied when its first five letters are "Drive" in any case. Each line of
/// the result ends in CR LF, also where a lone LF ended it.
std::string BlankDriveLines(std::string_view configuration, UpperCaser upperCase);

/// Pass 2: the drive line of the folder first, then every line of pass 1's result that is not blank.
/// `shortFolder` may be empty: the line is written all the same.
std::string AddDriveLine(std::string_view shortFolder, std::string_view blankedConfiguration);

} // namespace obrin
