#include "checker/MenuFileRules.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace obrin {
namespace {

bool IsLeadByte(char byte) {
    return byte == '\x81';
}

Findings Check(std::string_view file, const CodePage& codePage = {}) {
    return CheckMenuFile("F", file, ParseMenuDefinition(file, codePage.isLeadByte), codePage);
}

// "LINE PROBLEM" of each finding, in the order of lines.
std::vector<std::string> Problems(Findings findings) {
    std::ranges::stable_sort(findings, {}, [](const Finding& finding) { return finding.place.line; });
    std::vector<std::string> problems;
    for (const Finding& finding : findings)
        problems.push_back(std::to_string(finding.place.line) + ' ' + finding.trouble.problem);
    return problems;
}

using Lines = std::vector<std::string>;

TEST(MenuFileRules, BlameAnEmptyLineOnlyIfNoTopLevelHeadingFollowsIt) {
    EXPECT_EQ(Problems(Check("T\r\n\r\nA\r\n>>B^K")),
              (Lines{"2 an empty line", "3 the heading \"A\" holds no program",
                     "4 there is no heading one level above this entry"}));
}

TEST(MenuFileRules, IgnoreSpecialBytesInsideATwoByteCharacter) {
    EXPECT_EQ(Problems(Check("T\r\nA^\x81|\r\nB^\x81^\r\nC^\x81\\..", {.isLeadByte = IsLeadByte})), Lines{});
}

TEST(MenuFileRules, NameTheOutermostHeadingWithoutPrograms) {
    EXPECT_EQ(Problems(Check("T\r\nA\r\n>B\r\n>>C\r\nD\r\n>E^K\r\n>F")),
              (Lines{"2 the heading \"A\" holds no program", "7 the heading \"F\" holds no program"}));
}

TEST(MenuFileRules, WarnOfTheFirstLoneLineFeed) {
    EXPECT_EQ(Problems(Check("T\r\nA\nB^L\r\nC\n^M")), Lines{"2 a line end of LF alone"});
}

TEST(MenuFileRules, WarnOfByteOrderMarks) {
    EXPECT_EQ(Problems(Check("\xEF\xBB\xBFT\r\nA^K")), Lines{"1 a byte-order mark of UTF-8"});
    EXPECT_EQ(Problems(Check("\xFF\xFET\r\nA^K")), Lines{"1 a byte-order mark of UTF-16"});
}

TEST(MenuFileRules, WarnOfUtf8IfTheCodePageIsNotUtf8) {
    const std::string utf8 = "text in UTF-8";
    EXPECT_EQ(Problems(Check("T\r\nA\xC3\xA4^K\r\nB\xE2\x82\xAC^\xF0\x9F\x98\x80")), Lines{"2 " + utf8});
    EXPECT_EQ(Problems(Check("T\r\nA\xC3\xA4^K\r\nB\xE4^L")), Lines{})
        << "a line that is not UTF-8 shows that the file is ANSI text";
    EXPECT_EQ(Problems(Check("T\xC0\xA0\r\nA^K")), Lines{}) << "C0 begins no character of UTF-8";
}

TEST(MenuFileRules, WarnOfOtherTextIfTheCodePageIsUtf8) {
    const CodePage utf8{.isUtf8 = true};
    EXPECT_EQ(Problems(Check("T\xC3\xA4\r\nA^K", utf8)), Lines{});
    EXPECT_EQ(Problems(Check("T\xC3\xA4\r\nA\xE4^K", utf8)), Lines{"2 text that is not UTF-8"});
    EXPECT_EQ(Problems(Check("T\xC3\r\nA^K", utf8)), Lines{"1 text that is not UTF-8"})
        << "a character without its second byte";
}

TEST(MenuFileRules, WarnOfBlanksAroundKeys) {
    EXPECT_EQ(Problems(Check("T\r\nA^ K")), Lines{"2 the key  K begins or ends with a blank"});
}

TEST(MenuFileRules, WarnOfKeysWithTheFolderDotDot) {
    EXPECT_EQ(Problems(Check("T\r\nA^D/../E\r\nB^..M\\N..")), Lines{"2 the key D/../E holds \"..\""});
}

TEST(MenuFileRules, TellWhyAKeyIsNoFileName) {
    const std::pair<std::string, std::string> cases[] = {
        {"Core\\Programs\\CSBackup", ""},
        {"a*b", "holds the character *"},
        {"C:\\K", "holds the character :"},
        {"a\tb", "holds a control character"},
        {"nul", "names a device of Windows (nul)"},
        {"Core\\CON", "names a device of Windows (CON)"},
        {"aux/K", "names a device of Windows (aux)"},
        {"Com1.x\\K", "names a device of Windows (Com1.x)"},
        {"COM0\\CONTROL\\LPT10", ""},
    };
    for (const auto& [key, reason] : cases)
        EXPECT_EQ(FindFileNameFault(key, nullptr), reason) << key;
}

TEST(MenuFileRules, RecognizeMenuFileNamesInAnyCase) {
    EXPECT_TRUE(IsMenuFileNameInAnyCase("UB.MNU"));
    EXPECT_TRUE(IsMenuFileNameInAnyCase("UB.Mnu"));
    EXPECT_FALSE(IsMenuFileNameInAnyCase(".MNU"));
    EXPECT_FALSE(IsMenuFileNameInAnyCase("UB.txt"));
}

TEST(MenuFileRules, ShowTheTreeWithLineNumbersAndKeys) {
    EXPECT_EQ(
        FormatMenuTree(ParseMenuDefinition("T^x\r\nA>\r\n>B>C^K>1\r\n>D\x1B\r\n>>E^", nullptr), nullptr),
        "T\r\n    2:  A>\r\n    3:    BC [K1]\r\n    4:    D?\r\n    5:      E []\r\n");
}

TEST(MenuFileRules, ShowAnEntryWhoseHeadingIsMissingAtTheTopLevel) {
    EXPECT_EQ(FormatMenuTree(ParseMenuDefinition("T\r\n>>A^K", nullptr), nullptr), "T\r\n    2:  A [K]\r\n");
}

TEST(MenuFileRules, ShowAmpersandsAsTheMenuDoes) {
    EXPECT_EQ(FormatMenuTree(ParseMenuDefinition("&A && B&\r\nC & D^K", nullptr), nullptr),
              "A & B\r\n    2:  C & D [K]\r\n");
}

} // namespace
} // namespace obrin
