// Text of the workstation: bytes in its ANSI code page.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace obrin {

/// Upper-cases by the code page. The rules take it as an argument: only Windows knows the code page.
using UpperCaser = std::string (*)(std::string);

/// Whether a byte is the first of a character's two. Taken as an argument like the upper-casing; null for a
/// code page without such characters.
using LeadByteTest = bool (*)(char byte);

/// Where a character of one byte stands in a text, from `start` on, at which a character begins; npos when
/// nowhere. The second byte of a character can look like any from 40 hex on, such as "\" and "^". What is
/// below, such as blanks, digits, line ends, ".", "=" and ">", is found byte by byte.
std::size_t FindCharacter(std::string_view text, char character, LeadByteTest isLeadByte,
                          std::size_t start = 0);

/// The last such place.
std::size_t FindLastCharacter(std::string_view text, char character, LeadByteTest isLeadByte);

/// As many characters from the start of a text.
std::string_view FirstCharacters(std::string_view text, std::size_t count, LeadByteTest isLeadByte);

/// Without leading and trailing spaces. Tabs and other white space are text.
std::string_view TrimBlanks(std::string_view text);

/// As a caption is shown: "&", which marks an access key, left out, and "&&" as "&".
std::string RemoveAccessKeyMarks(std::string_view caption);

/// A text for a control that takes "&" for the mark of an access key.
std::string DoubleAmpersands(std::string_view text);

/// With a "\" appended when the last character is not one; an empty path becomes "\".
std::string EnsureTrailingBackslash(std::string path, LeadByteTest isLeadByte);

} // namespace obrin
