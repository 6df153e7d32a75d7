#include "settings/Margins.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

TEST(MarginOf, TakesTheLeadingNumberToTheNearestValueOfASlider) {
    EXPECT_EQ(MarginOf("0.500"), 500);
    EXPECT_EQ(MarginOf(" 1.25 inches"), 1250);
    EXPECT_EQ(MarginOf(".5"), 500);
    EXPECT_EQ(MarginOf("1.2346"), 1235);
    EXPECT_EQ(MarginOf("4.2"), 4000);
    EXPECT_EQ(MarginOf("1e300"), 4000);
    EXPECT_EQ(MarginOf("1e999"), 4000);
    for (const char* small : {"", "abc", "0", "0.249", "-1", "-1e999", "1,5e-9", ",5"})
        EXPECT_EQ(MarginOf(small), small[0] == '1' ? 1000 : 250) << small;
}

TEST(TypedMargin, IsNothingBelowTheSmallest) {
    for (const char* text : {"", "0", "0.", "0.1", ".", "-", "abc", "-3", "0.2499"})
        EXPECT_EQ(TypedMargin(text), std::nullopt) << text;
    EXPECT_EQ(TypedMargin("0.25"), 250);
    EXPECT_EQ(TypedMargin("4"), 4000);
    EXPECT_EQ(TypedMargin("12.5"), 4000);
}

TEST(ReadsAsMargin, IsExactForEveryValueOfASlider) {
    for (int margin = smallestMargin; margin <= largestMargin; ++margin) {
        const std::string whole = std::to_string(margin / 1000);
        const std::string thousandths = std::to_string(1000 + margin % 1000).substr(1);
        EXPECT_TRUE(ReadsAsMargin(whole + "." + thousandths + "0", margin)) << margin;
        EXPECT_FALSE(ReadsAsMargin(whole + "." + thousandths + "1", margin)) << margin;
    }
    EXPECT_FALSE(ReadsAsMargin("4.5", 4000));
    EXPECT_FALSE(ReadsAsMargin("", 250));
}

TEST(KeptCaret, KeepsItsPlaceRelativeToThePoint) {
    EXPECT_EQ(KeptCaret(".5", 2, "0.5"), 3U) << "typed to its end";
    EXPECT_EQ(KeptCaret(".5", 0, "0.5"), 1U) << "the 1 of 1.5 deleted, a 2 to come";
    EXPECT_EQ(KeptCaret("01", 2, "1"), 1U);
    EXPECT_EQ(KeptCaret("1.2345", 6, "1.235"), 5U);
    EXPECT_EQ(KeptCaret("1.29345", 4, "1.293"), 4U);
    EXPECT_EQ(KeptCaret("12.5", 2, "4"), 1U);
    EXPECT_EQ(KeptCaret("000001.5", 0, "1.5"), 0U);
    EXPECT_EQ(KeptCaret("", 0, "0.25"), 1U);
}

} // namespace
} // namespace obrin
