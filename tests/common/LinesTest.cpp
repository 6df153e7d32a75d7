#include "common/Lines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace std::string_literals;

namespace obrin {
namespace {

struct Case {
    const char* name;
    std::string text;
    std::vector<std::string> lines;
};

class Lines : public testing::TestWithParam<Case> {};

TEST_P(Lines, AreReadOneByOne) {
    std::vector<std::string> lines;
    LineReader reader(GetParam().text);
    while (const auto line = reader.Next())
        lines.emplace_back(*line);
    EXPECT_EQ(lines, GetParam().lines);
    EXPECT_FALSE(reader.Next()) << "the end stays the end";
}

INSTANTIATE_TEST_SUITE_P(, Lines,
                         testing::Values(Case{"Nothing", "", {}}, Case{"NoLineEnd", "a", {"a"}},
                                         Case{"Pairs", "a\r\nb\r\n", {"a", "b"}},
                                         Case{"LoneCarriageReturns", "a\rb\r", {"a", "b"}},
                                         Case{"LoneLineFeedIsText", "a\nb\r\n\nc", {"a\nb", "\nc"}},
                                         Case{"EmptyLines", "\r\n\r\r\na", {"", "", "", "a"}},
                                         Case{"AnyByte", "\0\x1A\xFF\r\n\x80"s, {"\0\x1A\xFF"s, "\x80"}}),
                         [](const auto& test) { return test.param.name; });

} // namespace
} // namespace obrin
