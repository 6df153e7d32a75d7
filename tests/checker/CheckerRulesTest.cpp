#include "checker/FileChecks.h"
#include "checker/Finding.h"
#include "checker/MenuCheck.h"
#include "startup/UserRecords.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace obrin {
namespace {

bool IsLeadByte(char byte) {
    return byte == '\x81';
}

// What is wrong, of each finding, in the order of the lines: "E2 there is no heading W3 ...".
std::string Briefly(std::vector<Finding> findings) {
    std::ranges::stable_sort(findings, {}, &Finding::line);
    std::string brief;
    for (const auto& [kind, line, text, file] : findings)
        brief += (kind == Finding::Kind::Error ? " E" : " W") + std::to_string(line) + " " +
                 text.substr(0, text.find(": "));
    return brief.substr(brief.empty() ? 0 : 1);
}

TEST(MenuCheck, FindsEverythingThatIsWrongOrOdd) {
    const std::string noHeading = "there is no heading one level above this entry";
    const std::string utf8 = "text in UTF-8";
    const std::pair<std::string, std::string> cases[] = {
        {"T\r\nA^K\r\nB\r\n>C^L\xE4", ""},
        {"T\r\n>A^K\r\n>B^L\r\nC\r\n>D^M\r\n>>>E^N\r\n>>F^O",
         "E2 " + noHeading + " E3 " + noHeading + " E6 " + noHeading + " E7 " + noHeading},
        {"T\r\nA\r\n>>>B\r\n>>>>C^K\r\n>D^L\r\n>>E^M", "E3 " + noHeading + " E6 " + noHeading},
        {"T\r\nA^1\r\nB^1\r\nC^K\r\nD^K\r\nE^K",
         "E2 the key 1 is a number E3 the key 1 is a number E3 the key 1 is there already, in line 2 "
         "E5 the key K is there already, in line 4 E6 the key K is there already, in line 4"},
        {"T\r\nA^\x81^\x1B\r\nB^\x81^\x1B", "E3 the key \x81^? is there already, in line 2"},
        {"T\r\nA^K\r\nB\xC3\xA4^L\r\nC\xE2\x82\xAC^\xF0\x9F\x98\x80", "W3 " + utf8},
        {"T\r\nA\xC3\xA4^K\r\nB\xE4^L\r\nC\xC3\xA4^M", ""},
        {"T\xC0\xA0\r\nA^K", ""},
        {"T\r\nA^a*b\r\nB^\x81|\r\nC^D/../E\r\nC^..M\\N..",
         "W2 the key a*b holds a character that no file name may (* ? "
         "\" < |) W4 the key D/../E holds \"..\""},
        {"T\r\nA\r\n>B\r\n>>C\r\n>D\r\nE\r\n>F\r\n>>G^K\r\n>H\r\n\r\n",
         "W2 the heading A holds no program W9 the heading H holds no program W10 an empty line"},
    };
    for (const auto& [file, expected] : cases) {
        const CodePage codePage{.isLeadByte = IsLeadByte};
        EXPECT_EQ(Briefly(CheckMenuFile(file, codePage, {}).findings), expected) << file.substr(0, 80);
    }
    EXPECT_EQ(CheckMenuFile("T\xC3\xA4\r\nA^K", {.isUtf8 = true}, {}).findings.size(), 0U);
}

TEST(MenuCheck, ShowsTheTreeAndTheKeys) {
    const auto check =
        CheckMenuFile(" T ^x\r\nA>\r\n>B>C^K>1\r\n>D\n\r\n>>E^\r\n>>>>F^L", {}, {.keys = true, .tree = true});
    EXPECT_EQ(check.tree, " T \r\n  A>\r\n    BC [K1]\r\n    D?\r\n      E []\r\n  F [L]\r\n");
    EXPECT_EQ(check.keys, (std::vector<std::string>{"K1", "L"}));
}

TEST(FileChecks, FindWhatIsOddInRecordsAndImages) {
    const std::string records = UserWsidRecord("a", 0) + UserWsidRecord("a", 3) + UserWsidRecord("b", 3);
    EXPECT_EQ(Briefly(CheckUserRecords(records, nullptr)),
              "W0 record 1 gives the user a the workstation number 0 W0 the user a has the records 1 and 2 "
              "W0 the users a and b both have the workstation number 3");
    EXPECT_EQ(Briefly(CheckUpdateRegister("01\n0")), "W0 byte 3 is no digit W0 the last record is cut off");
    EXPECT_EQ(Briefly(CheckSupportLibrary("MZ", "")), "E0 no library of Windows");
}

TEST(Finding, IsReportedInOrderAndOneLine) {
    constexpr auto error = Finding::Kind::Error;
    constexpr auto warning = Finding::Kind::Warning;
    const std::vector<Finding> findings{{warning, 10, "d", "B"},
                                        {error, 2, "b", "B"},
                                        {warning, 2, "c", "B"},
                                        {error, 0, "a", "B"},
                                        {error, 3, "x", "A"}};
    EXPECT_EQ(Report(findings),
              "A:3: error: x\r\nB: error: a\r\nB:2: error: b\r\nB:2: warning: c\r\nB:10: warning: d\r\n");
    EXPECT_EQ(Summary(findings, 1), "3 errors, 2 warnings in 1 menu file\r\n");
    EXPECT_EQ(Shown("a\r\n\x1B\x7F\xE4", nullptr), "a????\xE4");
    EXPECT_EQ(Shown(std::string(300, 'x'), nullptr), std::string(200, 'x') + "...");
}

} // namespace
} // namespace obrin
