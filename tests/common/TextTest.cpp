#include "common/Text.h"

#include <gtest/gtest.h>

namespace obrin {

constexpr auto npos = std::string::npos;

// 81 is a lead byte: of a character, of one that looks like "\" in the middle, of none at the end.
TEST(Text, CharactersAreFoundAmongThoseOfTwoBytes) {
    constexpr LeadByteTest lead = [](char byte) { return byte == '\x81'; };
    struct {
        std::string text;
        LeadByteTest isLeadByte;
        std::size_t first, last, firstFromTwo;
        std::string twoCharacters, asFolder;
    } const cases[] = {
        {"", lead, npos, npos, npos, "", "\\"},
        {"a\\b\\", nullptr, 1, 3, 3, "a\\", "a\\b\\"},
        {"a\\b\\c", lead, 1, 3, 3, "a\\", "a\\b\\c\\"},
        {"\x81\\\\\x81\\", lead, 2, 2, 2, "\x81\\\\", "\x81\\\\\x81\\\\"},
        {"\x81\\\\\x81\\", nullptr, 1, 4, 2, "\x81\\", "\x81\\\\\x81\\"},
        {"\x81\x81\\", lead, 2, 2, 2, "\x81\x81\\", "\x81\x81\\"},
        {"\\\x81", lead, 0, 0, npos, "\\\x81", "\\\x81\\"},
    };
    for (const auto& [text, isLeadByte, first, last, firstFromTwo, twoCharacters, asFolder] : cases) {
        EXPECT_EQ(FindCharacter(text, '\\', isLeadByte), first) << text;
        EXPECT_EQ(FindLastCharacter(text, '\\', isLeadByte), last) << text;
        EXPECT_EQ(FindCharacter(text, '\\', isLeadByte, 2), firstFromTwo) << text;
        EXPECT_EQ(FirstCharacters(text, 2, isLeadByte), twoCharacters);
        EXPECT_EQ(EnsureTrailingBackslash(text, isLeadByte), asFolder);
    }
}

} // namespace obrin
