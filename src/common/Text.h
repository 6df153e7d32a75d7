// Text of the workstation: bytes in its ANSI code page.
#pragma once

#include <string>
#include <string_view>

namespace obrin {

/// Upper-cases by the code page. The rules take it as an argument: only Windows knows the code page.
using UpperCaser = std::string (*)(std::string);

/// Without leading and trailing spaces. Tabs and other white space are text.
std::string_view TrimBlanks(std::string_view text);

/// With a "\" appended when the last character is not one; an empty path becomes "\".
std::string EnsureTrailingBackslash(std::string path);

} // namespace obrin
