#include "settings/Margins.h"

#include "common/Numbers.h"

#include <algorithm>
#include <cmath>

namespace obrin {

namespace {

constexpr double perInch = 1000;

int NearestMargin(double inches) {
    // Limits the number first, because rounding a huge number would overflow.
    return static_cast<int>(std::lround(std::clamp<double>(inches * perInch, smallestMargin, largestMargin)));
}

} // namespace

int ParseMargin(std::string_view text) {
    return NearestMargin(LeadingNumber(text));
}

std::optional<int> ParseTypedMargin(std::string_view text) {
    const double inches = LeadingNumber(text);
    if (inches < smallestMargin / perInch)
        return std::nullopt;
    return NearestMargin(inches);
}

bool EqualsMargin(std::string_view text, int margin) {
    // == is safe: the text "0.35" and 350 / 1000 both give the double that is nearest to 0.35.
    const double inches = std::min(LeadingNumber(text), largestMargin / perInch);
    return inches == margin / perInch;
}

std::size_t CaretAfterChange(std::string_view before, std::size_t caret, std::string_view after) {
    const auto pointOf = [](std::string_view text) {
        return static_cast<std::ptrdiff_t>(std::min(text.find('.'), text.size()));
    };
    const auto position = static_cast<std::ptrdiff_t>(caret) - pointOf(before) + pointOf(after);
    return static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(position, 0, std::ssize(after)));
}

} // namespace obrin
