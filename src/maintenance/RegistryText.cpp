#include "maintenance/RegistryText.h"

#include "common/Numbers.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace obrin {

namespace {

constexpr std::uint32_t stringType = 1;
constexpr std::uint32_t numberType = 4;
constexpr std::string_view hexDigits = "0123456789ABCDEF";

// Writes the bytes in hexadecimal from the last to the first. Each byte loses its leading zero: the bytes 05
// 01 give 15 and not 105. The menu has always done that.
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

// Returns the value of hexadecimal digits. A value that fits into 16 bits is a signed 16-bit number, a larger
// one a signed 32-bit number: FFFF and 0FFFF are -1, 10000 is 65536. Returns nothing if there are no digits
// or if the value needs more than 32 bits.
std::optional<int> SignedValue(std::string_view digits) {
    std::uint32_t value = 0;
    if (std::from_chars(digits.data(), digits.data() + digits.size(), value, 16).ec != std::errc())
        return std::nullopt;
    if (value <= UINT16_MAX)
        return static_cast<std::int16_t>(value);
    return static_cast<std::int32_t>(value);
}

// Returns the number in decimal, or "&h" and the digits if SignedValue returns nothing.
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
