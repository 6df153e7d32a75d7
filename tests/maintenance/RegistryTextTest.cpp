#include "maintenance/RegistryText.h"

#include <gtest/gtest.h>

using namespace std::string_literals;

namespace obrin {

TEST(RegistryText, IsTheStringOrTheNumberOfAValue) {
    struct {
        std::uint32_t type;
        std::string bytes, text;
    } const cases[] = {
        {1, "C:\0"s, "C:"},
        {1, "C:\\Tools", "C:\\Tools"}, // stored without its NUL
        {1, "a\0\0"s, "a\0"s},
        {1, "", ""},
        {2, "a\0"s, ""},
        // As stored: the low byte first. The last byte is cut when it is zero, as a string's NUL is.
        {4, "\x05\0\0\0"s, "5"},
        {4, "\0\0\0\0"s, "0"},
        {4, "\x34\x12\0\0"s, "4660"},
        {4, "\x05\x01\0\0"s, "21"},     // 105 in hexadecimal, read as 15
        {4, "\0\x10\0\0"s, "256"},      // 1000, read as 100
        {4, "\x10\x80\0\0"s, "-32752"}, // signed in sixteen bits
        {4, "\xFF\xFF\xFF\x7F"s, "2147483647"},
        {4, "\xFE\xFF\xFF\xFF"s, "-2"},
        {4, "\x10\xBC\x10\x10\x1A", "&h1A1010BC10"}, // too long for a number
        {4, "", "&h"},
    };
    for (const auto& [type, bytes, text] : cases)
        EXPECT_EQ(RegistryText(type, bytes), text);
}

} // namespace obrin
