#include "settings/Margins.h"

#include <gtest/gtest.h>

#include <string>

namespace obrin {
namespace {

TEST(Margin, IsReadInInchesAtTheStartOfATextAndKeptInTheLimits) {
    struct {
        const char* text;
        int loaded;
        std::optional<int> typed;
    } const cases[] = {
        {"0.500", 500, 500},           {" 1.2344 in", 1234, 1234},
        {"1.2346", 1235, 1235},        {"4.001", 4000, 4000}, // limited to the largest margin
        {"9e999", 4000, 4000},         {"0.25", 250, 250},    // the smallest margin
        {"0.2499", 250, std::nullopt}, {"-9e999", 250, std::nullopt},
        {"none", 250, std::nullopt},   {"", 250, std::nullopt},
    };
    for (const auto& [text, loaded, typed] : cases) {
        EXPECT_EQ(ParseMargin(text), loaded) << text;
        EXPECT_EQ(ParseTypedMargin(text), typed) << text;
    }
}

TEST(EqualsMargin, IsTrueForEveryWayOfWritingTheMargin) {
    for (const char* text : {"0.35", ".35", "0.350", "0.35 in"})
        EXPECT_TRUE(EqualsMargin(text, 350)) << text;
    EXPECT_FALSE(EqualsMargin("2.0501", 2050)) << "the slider has no such value";
}

TEST(EqualsMargin, TreatsALargerNumberAsTheLargestMargin) {
    EXPECT_TRUE(EqualsMargin("5", largestMargin));
    EXPECT_FALSE(EqualsMargin("5", 3990));
}

// "|" is the caret.
TEST(CaretAfterChange, KeepsItsPlaceRelativeToTheDecimalPoint) {
    struct {
        std::string before, after;
    } const cases[] = {
        {".5|", "0.5|"}, {"00.7|5", "0.7|5"}, {"01|.5", "1|.5"},
        {"01|", "1|"},   {"00|3", "|3"},     // without a point, it keeps its distance to the end
        {"|012", "|4"},  {"0.500|", "0.5|"}, // stays inside the text
    };
    for (const auto& [before, after] : cases) {
        std::string oldText = before, newText = after;
        oldText.erase(before.find('|'), 1);
        newText.erase(after.find('|'), 1);
        EXPECT_EQ(CaretAfterChange(oldText, before.find('|'), newText), after.find('|')) << before;
    }
}

} // namespace
} // namespace obrin
