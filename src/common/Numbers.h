// Numbers as text and text as numbers. The ways of writing a number differ on purpose: each stands in
// files or window captions that other programs of the installation read.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace obrin {

/// With a blank in the sign position of a number that is not negative: " 5", "-5".
std::string SignedDecimal(int number);

/// Plain: "5", "-5".
std::string PlainDecimal(int number);

/// With at least `digits` digits: 5 in two digits is "05".
std::string PaddedDecimal(int number, int digits);

/// Thousandths as a decimal number in the shortest form: 500 is "0.5", 1000 is "1".
std::string FormatThousandths(int thousandths);

/// The value of a text that is a decimal number as a whole (sign, point and exponent allowed, blanks around
/// it ignored); nothing for any other text.
std::optional<double> ParseNumber(std::string_view text);

/// The value of the number at the start of the text, behind blanks; 0 when the text starts with none.
double LeadingNumber(std::string_view text);

} // namespace obrin
