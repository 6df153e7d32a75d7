#include "maintenance/RegistryText.h"

#include "common/Numbers.h"

#include <algorithm>
#include <optional>

namespace obrin {

namespace {

constexpr std::uint32_t stringType = 1;
constexpr std::uint32_t numberType = 4;
constexpr std::string_view hexDigits = "0123456789ABCDEF";

// The bytes' codes in hexadecimal, from the last to the first, each without leading zeros, as it always was:
// the bytes 05 01 give 15 and not 105.
std::string HexDigitsFromLast(std::string_view bytes) {
    std::string digits;
    std::for_each(bytes.rbegin(), bytes.rend(), [&](char byte) {
        const auto code = static_cast<unsigned char>(byte);
        if (code >= 16)
            digits += hexDigits[code / 16];
        digits += hexDigits[code % 16];
    });
    return digits;
}

// The value of hexadecimal digits in the "&h" notation, where a number that fits into 16 bits is a signed
// number of 16 bits and any other one of 32: FFFF is -1, 10000 is 65536. Nothing without digits or above 32
// bits.
std::optional<int> SignedValue(std::string_view digits) {
    if (digits.empty())
        return std::nullopt;
    std::uint64_t value = 0;
    for (const char digit : digits) {
        value = value * 16 + hexDigits.find(digit);
        if (value > UINT32_MAX)
            return std::nullopt;
    }
    if (value <= UINT16_MAX)
        return static_cast<std::int16_t>(value);
    return static_cast<std::int32_t>(value);
}

// The general formatting leaves a text that is no number as it is.
std::string NumberText(std::string_view bytes) {
    const std::string digits = HexDigitsFromLast(bytes);
    const auto value = SignedValue(digits);
    return value ? PlainDecimal(*value) : "&h" + digits;
}

} // namespace

std::string RegistryText(std::uint32_t type, std::string_view bytes) {
    if (!bytes.empty() && bytes.back() == '\0')
        bytes.remove_suffix(1);
    switch (type) {
    case stringType:
        return std::string(bytes);
    case numberType:
        return NumberText(bytes);
    default:
        return {};
    }
}

} // namespace obrin
