#include "checker/Finding.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

TEST(Report, SortsFindingsByFileAndLine) {
    EXPECT_EQ(
        Report({{Effect::None, {"B", 10}, {"p", "r"}, "c"},
                {Effect::None, {"B", 9}, {"p", "r"}, "c"},
                {Effect::None, {"A", 11}, {"p", "r"}, "c"},
                {Effect::None, {"B", 0}, {"p", "r"}, "c"}}),
        "A:11: warning: p: c; r\r\nB: warning: p: c; r\r\nB:9: warning: p: c; r\r\nB:10: warning: p: c; "
        "r\r\n");
}

TEST(Report, DescribesTheEffectOfAFindingWithoutAConsequence) {
    EXPECT_EQ(Report({{Effect::EndsEveryStart, {"A", 0}, {"p", "r"}, ""}}),
              "A: error: p: the menu ends with an error at every start; r\r\n");
    EXPECT_EQ(Report({{Effect::EndsProperties, {"A", 0}, {"p", "r"}, ""}}),
              "A: warning: p: the Properties dialog ends the menu with an error; r\r\n");
}

TEST(Report, PrefersTheConsequenceOfAFindingToItsEffect) {
    EXPECT_EQ(Report({{Effect::EndsEveryStart, {"A", 0}, {"p", "r"}, "c"}}), "A: error: p: c; r\r\n");
}

TEST(Report, KeepsAFindingWithControlCharactersOnOneLine) {
    EXPECT_EQ(Report({{Effect::None, {"A\x1B", 0}, {"p\r\n\x7F\xE4", "r"}, "c"}}),
              "A?: warning: p???\xE4: c; r\r\n");
}

TEST(Summary, CountsErrorsWarningsAndMenuFiles) {
    EXPECT_EQ(
        Summary({{Effect::None, {"A", 0}, {"", ""}, ""}, {Effect::EndsProperties, {"A", 0}, {"", ""}, ""}}, 1,
                "details"),
        "0 errors, 2 warnings in 1 menu file (details)\r\n");
}

TEST(Shorten, KeepsTwoHundredCharacters) {
    EXPECT_EQ(Shorten(std::string(200, 'x'), nullptr), std::string(200, 'x'));
    EXPECT_EQ(Shorten(std::string(201, 'x'), nullptr), std::string(200, 'x') + "...");
}

} // namespace
} // namespace obrin
