#include "common/Text.h"

#include "support/CodePage.h"

#include <gtest/gtest.h>

namespace obrin {

using test::IsLeadByte;

constexpr auto npos = std::string::npos;

TEST(FindCharacter, FindsTheFirstAtOrAfterAPosition) {
    for (const LeadByteTest isLeadByte : {LeadByteTest{nullptr}, LeadByteTest{IsLeadByte}}) {
        EXPECT_EQ(FindCharacter("a^b^", '^', isLeadByte), 1U);
        EXPECT_EQ(FindCharacter("a^b^", '^', isLeadByte, 2), 3U);
        EXPECT_EQ(FindCharacter("ab", '^', isLeadByte), npos);
    }
}

TEST(FindCharacter, SkipsTheSecondByteOfACharacter) {
    EXPECT_EQ(FindCharacter("\x81^^", '^', IsLeadByte), 2U);
    EXPECT_EQ(FindCharacter("\x81\x81^", '^', IsLeadByte), 2U) << "even when it looks like a lead byte";
    EXPECT_EQ(FindCharacter("a\x81", '\x81', IsLeadByte), 1U) << "a lead byte at the end has no second byte";
    EXPECT_EQ(FindCharacter("\x81^^", '^', nullptr), 1U) << "in a code page without such characters";
}

TEST(FindLastCharacter, SkipsTheSecondByteOfACharacter) {
    EXPECT_EQ(FindLastCharacter("^a^b", '^', IsLeadByte), 2U);
    EXPECT_EQ(FindLastCharacter("ab", '^', IsLeadByte), npos);
    EXPECT_EQ(FindLastCharacter("^a\x81^", '^', IsLeadByte), 0U);
    EXPECT_EQ(FindLastCharacter("^a\x81^", '^', nullptr), 3U) << "in a code page without such characters";
}

TEST(FirstCharacters, CountATwoByteCharacterAsOne) {
    EXPECT_EQ(FirstCharacters("\x81^bc", 2, IsLeadByte), "\x81^b");
    EXPECT_EQ(FirstCharacters("\x81^bc", 2, nullptr), "\x81^") << "in a code page without such characters";
    EXPECT_EQ(FirstCharacters("a\x81", 2, IsLeadByte), "a\x81") << "a lead byte at the end";
    EXPECT_EQ(FirstCharacters("a", 2, IsLeadByte), "a");
}

TEST(TrimBlanks, RemovesOnlySpacesAtBothEnds) {
    EXPECT_EQ(TrimBlanks("  a b "), "a b");
    EXPECT_EQ(TrimBlanks("   "), "");
    EXPECT_EQ(TrimBlanks("\ta\r\n"), "\ta\r\n");
}

TEST(RemoveAccessKeyMarks, ReturnsTheCaptionAsItIsShown) {
    EXPECT_EQ(RemoveAccessKeyMarks("A&bout Obrin"), "About Obrin");
    EXPECT_EQ(RemoveAccessKeyMarks("Billing && Payroll&"), "Billing & Payroll");
}

TEST(DoubleAmpersands, PreventsAccessKeys) {
    EXPECT_EQ(DoubleAmpersands("&Billing & Payroll"), "&&Billing && Payroll");
}

TEST(EnsureTrailingBackslash, AppendsAMissingBackslash) {
    EXPECT_EQ(EnsureTrailingBackslash("C:\\Host", IsLeadByte), "C:\\Host\\");
    EXPECT_EQ(EnsureTrailingBackslash("C:\\Host\\", IsLeadByte), "C:\\Host\\");
    EXPECT_EQ(EnsureTrailingBackslash("", IsLeadByte), "\\");
    EXPECT_EQ(EnsureTrailingBackslash("C:\\\x81\\", IsLeadByte), "C:\\\x81\\\\")
        << "the second byte of a character";
}

} // namespace obrin
