#include "settings/Margins.h"

#include "common/Numbers.h"

#include <algorithm>
#include <cmath>

namespace obrin {

namespace {

constexpr double perInch = 1000;

int NearestMargin(double inches) {
    // Limited before it is rounded: the number in a text can be beyond any integer.
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
    // Both sides are the double nearest to the same decimal number, if it is the same.
    return LeadingNumber(text) == margin / perInch;
}

std::size_t CaretAfterChange(std::string_view before, std::size_t caret, std::string_view after) {
    const auto pointOf = [](std::string_view text) {
        return static_cast<std::ptrdiff_t>(std::min(text.find('.'), text.size()));
    };
    const auto place = static_cast<std::ptrdiff_t>(caret) - pointOf(before) + pointOf(after);
    return static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(place, 0, std::ssize(after)));
}

} // namespace obrin
