#include "maintenance/RegistryText.h"

#include <gtest/gtest.h>

using namespace std::string_literals;

namespace obrin {

constexpr std::uint32_t stringType = 1;
constexpr std::uint32_t expandableStringType = 2;
constexpr std::uint32_t numberType = 4; // stored with its lowest byte first

TEST(RegistryText, StringLosesOneNulAtItsEnd) {
    EXPECT_EQ(RegistryText(stringType, "C:\\Tools"), "C:\\Tools");
    EXPECT_EQ(RegistryText(stringType, "C:\\Tools\0"s), "C:\\Tools");
    EXPECT_EQ(RegistryText(stringType, "C:\\Tools\0\0"s), "C:\\Tools\0"s);
    EXPECT_EQ(RegistryText(stringType, ""), "");
}

TEST(RegistryText, OtherTypesAreEmpty) {
    EXPECT_EQ(RegistryText(expandableStringType, "C:\\Tools\0"s), "");
}

TEST(RegistryText, NumberIsDecimal) {
    EXPECT_EQ(RegistryText(numberType, "\x05\0\0\0"s), "5");
    EXPECT_EQ(RegistryText(numberType, "\0\0\0\0"s), "0");
    EXPECT_EQ(RegistryText(numberType, "\xFE\xFF\xFF\x7F"s), "2147483646");
}

TEST(RegistryText, NumberLosesTheLeadingZeroOfEachByte) {
    EXPECT_EQ(RegistryText(numberType, "\x05\x01\0\0"s), "21") << "hexadecimal 105, read as 15";
    EXPECT_EQ(RegistryText(numberType, "\0\x10\0\0"s), "256") << "hexadecimal 1000, read as 100";
}

TEST(RegistryText, NumberIsSignedIn16BitsOr32) {
    EXPECT_EQ(RegistryText(numberType, "\xFF\xFF\0\0"s), "-1");
    EXPECT_EQ(RegistryText(numberType, "\x10\x10\x01\0"s), "69648") << "hexadecimal 11010";
    EXPECT_EQ(RegistryText(numberType, "\xFE\xFF\xFF\xFF"s), "-2");
}

TEST(RegistryText, InvalidNumberKeepsItsHexadecimalDigits) {
    EXPECT_EQ(RegistryText(numberType, "\x10\xBC\x10\x10\x1A"), "&h1A1010BC10") << "more than 32 bits";
    EXPECT_EQ(RegistryText(numberType, ""), "&h");
}

} // namespace obrin
