#include "common/Text.h"

#include "common/Lines.h"

#include <gtest/gtest.h>

#include <vector>

using namespace std::string_literals;

namespace obrin {

TEST(Text, BlanksAreSpacesOnly) {
    EXPECT_EQ(TrimBlanks("  a b  "), "a b");
    EXPECT_EQ(TrimBlanks("   "), "");
    EXPECT_EQ(TrimBlanks("\ta\t"), "\ta\t");
}

TEST(Text, TrailingBackslashIsAddedOnce) {
    for (const char* path : {"C:\\Tessel", "C:\\Tessel\\"})
        EXPECT_EQ(EnsureTrailingBackslash(path), "C:\\Tessel\\");
    EXPECT_EQ(EnsureTrailingBackslash(""), "\\");
}

TEST(LineReader, EndsLinesAtCarriageReturnsOnly) {
    const std::pair<std::string, std::vector<std::string>> cases[] = {
        {"", {}},
        {"a", {"a"}},
        {"a\r\nb\r\n", {"a", "b"}},
        {"a\rb\r", {"a", "b"}},
        {"a\nb\r\n\nc", {"a\nb", "\nc"}}, // a lone LF is text
        {"\r\n\r\r\na", {"", "", "", "a"}},
        {"\0\x1A\xFF\r\n\x80"s, {"\0\x1A\xFF"s, "\x80"}},
    };
    for (const auto& [text, expected] : cases) {
        std::vector<std::string> lines;
        LineReader reader(text);
        while (const auto line = reader.Next())
            lines.emplace_back(*line);
        EXPECT_EQ(lines, expected);
        EXPECT_FALSE(reader.Next()) << "the end stays the end";
    }
}

} // namespace obrin
