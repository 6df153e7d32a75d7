#include "common/Numbers.h"

#include "common/Text.h"

#include <algorithm>
#include <cstdlib>

namespace obrin {

namespace {

struct NumberAtStart {
    double value;
    std::size_t length;
};

// Reads the longest decimal number at the start of the text.
NumberAtStart ReadNumber(std::string_view text) {
    // Without this cut strtod would also accept hexadecimal numbers, "inf" and "nan".
    const std::string number(text.substr(0, text.find_first_not_of("0123456789.+-eE")));
    char* end = nullptr;
    const double value = std::strtod(number.c_str(), &end);
    return {.value = value, .length = static_cast<std::size_t>(end - number.c_str())};
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

std::string FormatThousandths(int thousandths) {
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
