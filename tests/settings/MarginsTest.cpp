#include "settings/Margins.h"

#include <gtest/gtest.h>

#include <string>

namespace obrin {
namespace {

TEST(ParseMargin, IsTheNumberAtTheStartInThousandthsOfAnInch) {
    EXPECT_EQ(ParseMargin("0.500"), 500);
    EXPECT_EQ(ParseMargin(" 1.2344 in"), 1234);
    EXPECT_EQ(ParseMargin("1.2346"), 1235);
}

TEST(ParseMargin, IsAtLeastAQuarterOfAnInch) {
    for (const char* text : {"0.2", "0", "-9e999", "none", ""})
        EXPECT_EQ(ParseMargin(text), 250) << text;
}

TEST(ParseMargin, IsAtMostFourInches) {
    for (const char* text : {"4.001", "9e999"})
        EXPECT_EQ(ParseMargin(text), 4000) << text;
}

TEST(ParseTypedMargin, IsTheNumberAtTheStartInThousandthsOfAnInch) {
    EXPECT_EQ(ParseTypedMargin("0.25"), 250);
    EXPECT_EQ(ParseTypedMargin("1.2346 in"), 1235);
}

TEST(ParseTypedMargin, IsNothingBelowAQuarterOfAnInch) {
    for (const char* text : {"0.2499", "0.", "", "abc", "-1"})
        EXPECT_EQ(ParseTypedMargin(text), std::nullopt) << text;
}

TEST(ParseTypedMargin, IsAtMostFourInches) {
    EXPECT_EQ(ParseTypedMargin("4.5"), 4000);
}

TEST(EqualsMargin, IsTrueForEveryWayOfWritingTheMargin) {
    for (const char* text : {"0.35", ".35", "0.350", "0.35 in"})
        EXPECT_TRUE(EqualsMargin(text, 350)) << text;
}

TEST(EqualsMargin, TakesANumberBeyondTheLargestMarginForThatOne) {
    EXPECT_TRUE(EqualsMargin("5", largestMargin));
    EXPECT_FALSE(EqualsMargin("5", 3990));
}

TEST(EqualsMargin, IsFalseForANumberThatIsOnlyNear) {
    EXPECT_FALSE(EqualsMargin("2.0501", 2050));
}

// Shows the caret as "|", in the text before and in the one that replaces it.
std::string WithKeptCaret(std::string before, std::string after) {
    const auto caret = before.find('|');
    before.erase(caret, 1);
    return after.insert(CaretAfterChange(before, caret, after), "|");
}

TEST(CaretAfterChange, KeepsItsPlaceRelativeToTheDecimalPoint) {
    EXPECT_EQ(WithKeptCaret(".5|", "0.5"), "0.5|");
    EXPECT_EQ(WithKeptCaret("00.7|5", "0.75"), "0.7|5");
    EXPECT_EQ(WithKeptCaret("01|.5", "1.5"), "1|.5");
}

TEST(CaretAfterChange, CountsFromTheEndOfATextWithoutAPoint) {
    EXPECT_EQ(WithKeptCaret("01|", "1"), "1|");
    EXPECT_EQ(WithKeptCaret("00|3", "3"), "|3");
}

TEST(CaretAfterChange, StaysInsideTheText) {
    EXPECT_EQ(WithKeptCaret("|012", "4"), "|4");
    EXPECT_EQ(WithKeptCaret("0.500|", "0.5"), "0.5|");
}

} // namespace
} // namespace obrin
