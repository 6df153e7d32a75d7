// Converts numbers to text and text to numbers. There are several forms of text, because other programs of
// the suite expect a different one in each file or window caption.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace obrin {

/// Puts a blank in front of a number that is not negative: " 5", "-5".
std::string SignedDecimal(int number);

/// Writes a number without blanks and leading zeros: "5", "-5".
std::string PlainDecimal(int number);

/// Adds leading zeros if there are fewer than `digits` digits: 5 with two digits is "05".
std::string PaddedDecimal(int number, int digits);

/// Writes a number of thousandths as a decimal number without trailing zeros: 500 is "0.5", 1000 is "1".
std::string FormatThousandths(int thousandths);

/// Returns the value of a text that holds one decimal number, or nothing for any other text. Sign, point,
/// exponent and blanks at both ends are allowed.
std::optional<double> ParseNumber(std::string_view text);

/// Returns the number at the start of the text, or 0 if there is none. Skips leading blanks.
double LeadingNumber(std::string_view text);

} // namespace obrin
