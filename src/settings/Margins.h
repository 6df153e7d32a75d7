// Converts a margin between the text of its box (inches) and the value of its slider (thousandths).
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace obrin {

constexpr int smallestMargin = 250;
constexpr int largestMargin = 4000;

/// Returns the slider value for the number at the start of a text, limited to the range of the slider. A text
/// without a number counts as 0.
int ParseMargin(std::string_view text);

/// Does the same while the user types. Returns nothing for numbers below the smallest margin, such as "0.".
std::optional<int> ParseTypedMargin(std::string_view text);

/// Returns whether the number at the start of a text equals a slider value exactly. A number above the
/// largest margin counts as the largest margin.
bool EqualsMargin(std::string_view text, int margin);

/// Returns the caret's new position when the text of a box changes from `before` to `after`. Its distance to
/// the decimal point stays, so that the user can go on typing when ".5" becomes "0.5" or "01" becomes "1".
std::size_t CaretAfterChange(std::string_view before, std::size_t caret, std::string_view after);

} // namespace obrin
