// Formats a line of a settings file.
#pragma once

#include <string>
#include <string_view>

namespace obrin {

/// Pads the key to 18 characters and appends "=", five spaces and the value. Throws RunTimeError for a key
/// that is longer than that.
std::string FormatIniLine(std::string_view key, std::string_view value);

} // namespace obrin
