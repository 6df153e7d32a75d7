#include "maintenance/RegistryText.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

struct Case {
    const char* name;
    std::uint32_t type;
    std::string bytes;
    std::string text;
};

class Value : public testing::TestWithParam<Case> {};

TEST_P(Value, BecomesText) {
    EXPECT_EQ(RegistryText(GetParam().type, GetParam().bytes), GetParam().text);
}

std::string Bytes(std::initializer_list<int> codes) {
    std::string bytes;
    for (const int code : codes)
        bytes += static_cast<char>(code);
    return bytes;
}

INSTANTIATE_TEST_SUITE_P(
    , Value,
    testing::Values(
        Case{"StringWithItsNul", 1, Bytes({'C', ':', 0}), "C:"},
        Case{"StringWithoutNul", 1, "C:\\Tools", "C:\\Tools"},
        Case{"StringLosesOneNul", 1, Bytes({'a', 0, 0}), Bytes({'a', 0})},
        Case{"EmptyString", 1, Bytes({0}), ""}, Case{"NoBytes", 1, "", ""},
        Case{"ExpandableString", 2, Bytes({'a', 0}), ""}, Case{"Binary", 3, "abc", ""},
        Case{"BigEndianNumber", 5, "abcd", ""},
        // As stored: the low byte first. The last byte is cut when it is zero, as a string's NUL is.
        Case{"SmallNumber", 4, Bytes({5, 0, 0, 0}), "5"}, Case{"Zero", 4, Bytes({0, 0, 0, 0}), "0"},
        Case{"TwoDigitCodes", 4, Bytes({0x34, 0x12, 0, 0}), "4660"},
        Case{"LosesZerosWithinTheNumber", 4, Bytes({5, 1, 0, 0}), "21"}, // 105 in hexadecimal, read as 15
        Case{"LosesAWholeZeroByte", 4, Bytes({0, 0x10, 0, 0}), "256"},   // 1000, read as 100
        Case{"LargestOfSixteenBits", 4, Bytes({0xFF, 0x7F, 0, 0}), "32767"},
        Case{"SignedInSixteenBits", 4, Bytes({0xFF, 0xFF, 0, 0}), "-1"},
        Case{"NegativeInSixteenBits", 4, Bytes({0x10, 0x80, 0, 0}), "-32752"},
        Case{"AboveSixteenBits", 4, Bytes({0x10, 0x32, 0x54, 0}), "5517840"},
        Case{"LargestOfThirtyTwoBits", 4, Bytes({0xFF, 0xFF, 0xFF, 0x7F}), "2147483647"},
        Case{"SignedInThirtyTwoBits", 4, Bytes({0xFE, 0xFF, 0xFF, 0xFF}), "-2"},
        Case{"TooLongForANumber", 4, Bytes({0x10, 0xBC, 0x10, 0x10, 0x1A}), "&h1A1010BC10"},
        Case{"NoNumberAtAll", 4, "", "&h"}),
    [](const auto& test) { return test.param.name; });

} // namespace
} // namespace obrin
