#include "startup/HostKeys.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace obrin {
namespace {

using Codes = std::vector<std::uint8_t>;

// Of a Greek code page, in which 220 is a lower-case letter; as much of it as is typed here.
std::string GreekUpper(std::string text) {
    std::ranges::replace(text, 'a', 'A');
    std::ranges::replace(text, '\xDC', '\xA2');
    return text;
}

TEST(HostKeys, AreUnsignedUpperCaseCodes) {
    EXPECT_EQ(HostKeyCodes("aZ9 .\xFF", GreekUpper, nullptr), (Codes{'A', 'Z', '9', ' ', '.', 0xFF}));
    EXPECT_EQ(HostKeyCodes("\xDC\\a\\", GreekUpper, nullptr), (Codes{0xA2, 220, 'A', 220}));
    EXPECT_EQ(HostKeyCodes("a\r\nB\rC\nD\r\r\n", GreekUpper, nullptr),
              (Codes{'A', 13, 'B', 13, 'C', 10, 'D', 13, 13}));
    EXPECT_EQ(HostKeyCodes("\x81\\\\\x81\r\\", GreekUpper, [](char byte) { return byte == '\x81'; }),
              (Codes{0x81, 0x5C, 220, 0x81, 13, 220}))
        << "a character of two bytes is typed as they are";
    EXPECT_EQ(HostStartArguments(-7) + StationCaption(-7), "run core\\start --7Obrin--07");
}

} // namespace
} // namespace obrin
