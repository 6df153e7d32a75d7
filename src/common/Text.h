// Helpers for text, which is always bytes in the workstation's ANSI code page.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace obrin {

/// Converts a text to upper case. Functions take it as a parameter, because only Windows knows the code page.
using UpperCaser = std::string (*)(std::string);

/// Returns whether a byte is the first of a two-byte character. Null if the code page has no such characters.
using LeadByteTest = bool (*)(char byte);

/// Returns the position of a one-byte character at or after `start`, or npos. `start` must not be the second
/// byte of a character. Second bytes can have any value from 40 hex on, such as "\" or "^". To find a lower
/// value, such as a blank, a digit, a line end, ".", "=" or ">", use std::string::find.
std::size_t FindCharacter(std::string_view text, char character, LeadByteTest isLeadByte,
                          std::size_t start = 0);

/// Returns the last position of a one-byte character, or npos.
std::size_t FindLastCharacter(std::string_view text, char character, LeadByteTest isLeadByte);

/// Returns the first `count` characters of a text.
std::string_view FirstCharacters(std::string_view text, std::size_t count, LeadByteTest isLeadByte);

/// Converts A to Z to lower case and leaves all other bytes as they are.
std::string AsciiLowerCase(std::string_view text);

/// Removes leading and trailing spaces. Keeps tabs and other white space.
std::string_view TrimBlanks(std::string_view text);

/// Returns a caption as it is shown: without each "&" that marks an access key, and with "&&" as "&".
std::string RemoveAccessKeyMarks(std::string_view caption);

/// Doubles every "&", for a control that would read one as the mark of an access key.
std::string DoubleAmpersands(std::string_view text);

/// Appends a "\" if the path does not end with one. An empty path becomes "\".
std::string EnsureTrailingBackslash(std::string path, LeadByteTest isLeadByte);

} // namespace obrin
