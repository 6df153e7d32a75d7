#include "common/Numbers.h"

#include "common/Text.h"

#include <algorithm>
#include <cstdlib>

namespace obrin {

namespace {

struct Reading {
    double value;
    std::size_t length;
};

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

// value * 10 ^ exponent: rounded once, and so the nearest, for numbers of up to 15 digits such as people
// type.
double Scaled(double value, int exponent) {
    constexpr int most = 400; // whose power is infinite
    double power = 1;
    for (int i = std::min(std::abs(exponent), most); i > 0; --i)
        power *= 10;
    if (value == 0) // which the power of a large exponent, infinite, would make no number
        return 0;
    return exponent < 0 ? value / power : value * power;
}

// Reads the longest decimal number at the start of the text. The library's own reader also takes hexadecimal
// numbers, "inf" and "nan", and is a seventh of the program.
Reading ReadNumber(std::string_view text) {
    constexpr double enough = 1e17; // more digits change nothing
    constexpr int mostExponent = 100'000;
    std::size_t at = 0;
    const auto next = [&](auto&& isWanted) { return at < text.size() && isWanted(text[at]); };
    const auto isSign = [](char character) { return character == '+' || character == '-'; };

    const bool negative = next(isSign) && text[at++] == '-';
    double value = 0;
    int exponent = 0;
    bool point = false, digits = false;
    while (next(IsDigit) || (!point && next([](char character) { return character == '.'; }))) {
        if (text[at] == '.') {
            point = true;
        } else {
            digits = true;
            const bool counts = value < enough;
            if (counts)
                value = value * 10 + (text[at] - '0');
            exponent += (counts ? 0 : 1) - (point ? 1 : 0);
        }
        ++at;
    }
    if (!digits)
        return {.value = 0, .length = 0};

    const std::size_t mantissaEnd = at;
    if (next([](char character) { return character == 'e' || character == 'E'; })) {
        ++at;
        const bool negativeExponent = next(isSign) && text[at++] == '-';
        if (!next(IsDigit)) {
            at = mantissaEnd; // an "e" alone is no part of the number
        } else {
            int written = 0;
            for (; next(IsDigit); ++at)
                written = std::min(written * 10 + (text[at] - '0'), mostExponent);
            exponent += negativeExponent ? -written : written;
        }
    }
    value = Scaled(value, exponent);
    return {.value = negative ? -value : value, .length = at};
}

} // namespace

std::string PlainDecimal(int number) {
    return std::to_string(number);
}

std::string SignedDecimal(int number) {
    return (number < 0 ? "" : " ") + PlainDecimal(number);
}

std::string PaddedDecimal(int number, int digits) {
    std::string text = std::to_string(number < 0 ? -static_cast<long long>(number) : number);
    if (text.size() < static_cast<std::size_t>(digits))
        text.insert(0, static_cast<std::size_t>(digits) - text.size(), '0');
    return (number < 0 ? "-" : "") + text;
}

std::string ShortestThousandths(int thousandths) {
    std::string text = PaddedDecimal(thousandths, 4);
    text.insert(text.size() - 3, 1, '.');
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text.pop_back();
    return text;
}

std::optional<double> ParseNumber(std::string_view text) {
    text = TrimBlanks(text);
    const auto [value, length] = ReadNumber(text);
    if (text.empty() || length != text.size())
        return std::nullopt;
    return value;
}

double LeadingNumber(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return ReadNumber(text).value;
}

} // namespace obrin
