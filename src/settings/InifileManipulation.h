// The layout of a line of a settings file.
#pragma once

#include <string>
#include <string_view>

namespace obrin {

/// The key in a column of 18 characters, "=", five spaces, the value. Throws RunTimeError for a key that does
/// not fit its column.
std::string FormatIniLine(std::string_view key, std::string_view value);

} // namespace obrin
