#include "startup/HostKeys.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

using Codes = std::vector<std::uint8_t>;

// A Greek code page's upper case, in which 220 is a lower-case letter.
std::string GreekUpper(std::string text) {
    for (char& c : text) {
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
        else if (c == '\xDC')
            c = '\xA2';
    }
    return text;
}

TEST(HostKeys, AreUnsignedUpperCaseCodes) {
    EXPECT_EQ(HostKeyCodes("aZ9 .\xFF", GreekUpper, nullptr), (Codes{'A', 'Z', '9', ' ', '.', 0xFF}));
    EXPECT_EQ(HostKeyCodes("\xDC\\b\\", GreekUpper, nullptr), (Codes{0xA2, 220, 'B', 220}));
    EXPECT_EQ(HostKeyCodes("a\r\nb\rc\nd\r\r\n", GreekUpper, nullptr),
              (Codes{'A', 13, 'B', 13, 'C', 10, 'D', 13, 13}));
    EXPECT_EQ(HostKeyCodes("\x81\\\\\x81\r\\", GreekUpper, [](char byte) { return byte == '\x81'; }),
              (Codes{0x81, 0x5C, 220, 0x81, 13, 220}))
        << "a character of two bytes is typed as they are";
}

} // namespace
} // namespace obrin
