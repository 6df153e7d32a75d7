#include "settings/Margins.h"

#include <gtest/gtest.h>

#include <string>

namespace obrin {
namespace {

TEST(MarginOf, IsTheNumberAtTheStartInThousandthsOfAnInch) {
    EXPECT_EQ(MarginOf("0.500"), 500);
    EXPECT_EQ(MarginOf(" 1.2344 in"), 1234);
    EXPECT_EQ(MarginOf("1.2346"), 1235);
}

TEST(MarginOf, IsAtLeastAQuarterOfAnInch) {
    for (const char* text : {"0.2", "0", "-9e999", "none", ""})
        EXPECT_EQ(MarginOf(text), 250) << text;
}

TEST(MarginOf, IsAtMostFourInches) {
    for (const char* text : {"4.001", "9e999"})
        EXPECT_EQ(MarginOf(text), 4000) << text;
}

TEST(TypedMargin, IsTheNumberAtTheStartInThousandthsOfAnInch) {
    EXPECT_EQ(TypedMargin("0.25"), 250);
    EXPECT_EQ(TypedMargin("1.2346 in"), 1235);
}

TEST(TypedMargin, IsNothingBelowAQuarterOfAnInch) {
    for (const char* text : {"0.2499", "0.", "", "abc", "-1"})
        EXPECT_EQ(TypedMargin(text), std::nullopt) << text;
}

TEST(TypedMargin, IsAtMostFourInches) {
    EXPECT_EQ(TypedMargin("4.5"), 4000);
}

TEST(ReadsAsMargin, IsTrueForEveryWayOfWritingTheMargin) {
    for (const char* text : {"0.35", ".35", "0.350", "0.35 in"})
        EXPECT_TRUE(ReadsAsMargin(text, 350)) << text;
}

TEST(ReadsAsMargin, IsFalseForANumberThatIsOnlyNear) {
    EXPECT_FALSE(ReadsAsMargin("2.0501", 2050));
}

// Shows the caret as "|", in the text before and in the one that replaces it.
std::string WithKeptCaret(std::string before, std::string after) {
    const auto caret = before.find('|');
    before.erase(caret, 1);
    return after.insert(KeptCaret(before, caret, after), "|");
}

TEST(KeptCaret, KeepsItsPlaceRelativeToTheDecimalPoint) {
    EXPECT_EQ(WithKeptCaret(".5|", "0.5"), "0.5|");
    EXPECT_EQ(WithKeptCaret("00.7|5", "0.75"), "0.7|5");
    EXPECT_EQ(WithKeptCaret("01|.5", "1.5"), "1|.5");
}

TEST(KeptCaret, CountsFromTheEndOfATextWithoutAPoint) {
    EXPECT_EQ(WithKeptCaret("01|", "1"), "1|");
    EXPECT_EQ(WithKeptCaret("00|3", "3"), "|3");
}

TEST(KeptCaret, StaysInsideTheText) {
    EXPECT_EQ(WithKeptCaret("|012", "4"), "|4");
    EXPECT_EQ(WithKeptCaret("0.500|", "0.5"), "0.5|");
}

} // namespace
} // namespace obrin
