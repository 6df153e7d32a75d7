#include "settings/Margins.h"

#include <gtest/gtest.h>

namespace obrin {

TEST(Margins, AreTheLeadingNumberWithinTheRangeAndWhileTypedNothingBelowIt) {
    const std::pair<const char*, int> cases[] = {
        {" 1.25 inches", 1250}, {".5", 500},     {"1.2346", 1235}, {"4", 4000},
        {"12.5", 4000},         {"1e999", 4000}, {"1,5e-9", 1000}, {"0.25", 250}};
    for (const auto& [text, margin] : cases) {
        EXPECT_EQ(MarginOf(text), margin) << text;
        EXPECT_EQ(TypedMargin(text), margin) << text;
    }
    for (const char* text : {"0.2499", "", "abc", "0", "0.", ".", "-", "-1e999", ",5"}) {
        EXPECT_EQ(MarginOf(text), 250) << text;
        EXPECT_EQ(TypedMargin(text), std::nullopt) << text;
    }
}

TEST(KeptCaret, KeepsItsPlaceRelativeToThePoint) {
    EXPECT_EQ(KeptCaret(".5", 0, "0.5"), 1U) << "the 1 of 1.5 deleted, a 2 to come";
    EXPECT_EQ(KeptCaret("1.29345", 4, "1.293"), 4U);
    EXPECT_EQ(KeptCaret("000001.5", 0, "1.5"), 0U);
    EXPECT_EQ(KeptCaret("", 0, "0.25"), 1U);
}

} // namespace obrin
