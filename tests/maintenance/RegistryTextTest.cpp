#include "maintenance/RegistryText.h"

#include <gtest/gtest.h>

using namespace std::string_literals;

namespace obrin {

constexpr std::uint32_t stringType = 1;
constexpr std::uint32_t expandableStringType = 2;
constexpr std::uint32_t numberType = 4;

TEST(RegistryText, StringLosesOneNulAtItsEnd) {
    EXPECT_EQ(RegistryText(stringType, "C:\\Tools"), "C:\\Tools");
    EXPECT_EQ(RegistryText(stringType, "C:\\Tools\0"s), "C:\\Tools");
    EXPECT_EQ(RegistryText(stringType, "C:\\Tools\0\0"s), "C:\\Tools\0"s);
    EXPECT_EQ(RegistryText(stringType, ""), "");
}

TEST(RegistryText, OtherTypesAreEmpty) {
    EXPECT_EQ(RegistryText(expandableStringType, "C:\\Tools\0"s), "");
}

TEST(RegistryText, NumberIsWrittenInDecimal) {
    struct {
        const char* rule;
        std::string bytes;
        const char* text;
    } const cases[] = {
        {"the lowest byte comes first", "\xFE\xFF\xFF\x7F"s, "2147483646"},
        {"one NUL at the end is removed, which leaves no bytes here", "\0"s, "&h"},
        {"zero", "\0\0\0\0"s, "0"},
        {"hexadecimal 105 loses the zero of its byte 05", "\x05\x01\0\0"s, "21"},
        {"hexadecimal 1000 loses a zero of its byte 00", "\0\x10\0\0"s, "256"},
        {"16 bits are signed", "\xFF\xFF\0\0"s, "-1"},
        {"a number above 16 bits is not cut to 16 bits", "\x10\x10\x01\0"s, "69648"},
        {"32 bits are signed", "\xFE\xFF\xFF\xFF"s, "-2"},
        {"more than 32 bits are no number", "\x10\xBC\x10\x10\x1A"s, "&h1A1010BC10"},
        {"no bytes are no number", ""s, "&h"},
    };
    for (const auto& [rule, bytes, text] : cases)
        EXPECT_EQ(RegistryText(numberType, bytes), text) << rule;
}

} // namespace obrin
