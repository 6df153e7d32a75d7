#include "common/Lines.h"

#include <gtest/gtest.h>

#include <vector>

namespace obrin {
namespace {

using Lines = std::vector<std::string_view>;

Lines LinesOf(std::string_view text, LoneLf loneLf = LoneLf::IsText) {
    Lines lines;
    LineReader reader(text, loneLf);
    while (const auto line = reader.Next())
        lines.push_back(*line);
    return lines;
}

TEST(LineReader, EndsALineAtCrLfOrALoneCr) {
    EXPECT_EQ(LinesOf("a\r\nb\rc\r\n"), (Lines{"a", "b", "c"}));
    EXPECT_EQ(LinesOf("a\r\nb"), (Lines{"a", "b"})) << "the last line may have no end";
}

TEST(LineReader, EndsALineAtALoneLfOnlyOnRequest) {
    EXPECT_EQ(LinesOf("a\nb\r\n\nc"), (Lines{"a\nb", "\nc"}));
    EXPECT_EQ(LinesOf("a\nb\r\nc\rd", LoneLf::EndsLine), (Lines{"a", "b", "c", "d"}));
}

TEST(LineReader, ReturnsEmptyLines) {
    EXPECT_EQ(LinesOf("\r\n\r\r\na"), (Lines{"", "", "", "a"}));
    EXPECT_EQ(LinesOf(""), Lines{}) << "no line at all";
}

} // namespace
} // namespace obrin
