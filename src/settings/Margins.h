// A margin as a slider's value, thousandths of an inch, and as the text of its box, inches.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace obrin {

constexpr int smallestMargin = 250;
constexpr int largestMargin = 4000;

/// The value for the number at the start of a text, 0 when there is none; the nearest that a slider can take.
int ParseMargin(std::string_view text);

/// The same for a text that is being typed: nothing below the smallest margin, as a number half typed is.
std::optional<int> ParseTypedMargin(std::string_view text);

/// Whether the number at the start of a text is exactly that margin.
bool EqualsMargin(std::string_view text, int margin);

/// Where the caret goes when a box's text is replaced under it: its place relative to the decimal point
/// stays. A digit typed next is then where it was meant to be, in ".5" that becomes "0.5" as in "01" that
/// becomes "1".
std::size_t CaretAfterChange(std::string_view before, std::size_t caret, std::string_view after);

} // namespace obrin
