#include "menu/MenuDefinition.h"

#include "common/RunTimeError.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

// "text|key|parent" of each node.
std::vector<std::string> Nodes(const std::string& file) {
    std::vector<std::string> nodes;
    for (const auto& [text, key, parent] : ParseMenuDefinition(file, "UB.mnu").entries)
        nodes.push_back(text + "|" + key + "|" + std::to_string(parent));
    return nodes;
}

TEST(MenuDefinition, TakesTheTitleFromTheHeaderLine) {
    EXPECT_EQ(ParseMenuDefinition("Utility Billing^x^y\r\n", "UB.mnu").title, "Utility Billing");
    EXPECT_EQ(ParseMenuDefinition("  Payroll \r\n", "PR.mnu").title, "  Payroll ");
    EXPECT_EQ(ParseMenuDefinition("\r\n", "XX.mnu").title, "");
    EXPECT_EQ(SystemCode("UB.mnu"), "UB");
    EXPECT_EQ(SystemCode("U"), "U");
}

TEST(MenuDefinition, NamesAreTestedWithCase) {
    EXPECT_TRUE(IsMenuFileName("A.mnu"));
    for (const char* name : {".mnu", "C.MNU", "A.Mnu", "b.txt", "mnu", "A.mnu.bak", ""})
        EXPECT_FALSE(IsMenuFileName(name)) << name;
}

struct Case {
    const char* name;
    std::string entries;
    std::vector<std::string> nodes;
};

class Entries : public testing::TestWithParam<Case> {};

TEST_P(Entries, BecomeNodes) {
    EXPECT_EQ(Nodes("Title\r\n" + GetParam().entries), GetParam().nodes);
}

INSTANTIATE_TEST_SUITE_P(
    , Entries,
    testing::Values(Case{"ThreeLevels",
                         "Billing\r\n>Post^UB\\Post\r\n>Reports\r\n>>Journal^UB\\Journal\r\n",
                         {"Billing||0", "Post|UB\\Post|1", "Reports||1", "Journal|UB\\Journal|3"}},
                    Case{"ProgramsAreNoParents", "A\r\nTop^K1\r\n>B^K2\r\n", {"A||0", "Top|K1|0", "B|K2|1"}},
                    Case{"ProgramsLoseEveryMark", "A>B^K>1>\r\n", {"AB|K1|0"}},
                    Case{"HeadingsKeepInnerMarks", "A>B\r\n>C>D\r\n", {"A>B||0", "C>D||1"}},
                    Case{"FurtherFieldsAreIgnored", "A^K^x^y\r\n", {"A|K|0"}},
                    Case{"MissingKeysMayRepeat", "A^\r\nB^\r\n^\r\n", {"A||0", "B||0", "||0"}},
                    Case{"EmptyLineIsAHeading", "A\r\n\r\n>B^K\r\n", {"A||0", "||0", "B|K|2"}},
                    Case{"ShallowerHeadingClosesDeeperOnes",
                         "A\r\n>B\r\nC\r\n>D\r\n>>E^K\r\n",
                         {"A||0", "B||1", "C||0", "D||3", "E|K|4"}},
                    Case{"KeysDifferByCase", "A^k\r\nB^K", {"A|k|0", "B|K|0"}},
                    Case{"LineFeedIsText", "A\nB\rC", {"A\nB||0", "C||0"}}),
    [](const auto& test) { return test.param.name; });

struct BadCase {
    const char* name;
    std::string file;
    PlatformError error;
    const char* doing;
};

class BadDefinition : public testing::TestWithParam<BadCase> {};

TEST_P(BadDefinition, IsRefusedWithFileAndLine) {
    const auto& [name, file, error, doing] = GetParam();
    try {
        ParseMenuDefinition(file, "UB.mnu");
        FAIL() << "no error";
    } catch (const RunTimeError& raised) {
        EXPECT_EQ(raised.Code(), static_cast<std::uint32_t>(error));
        EXPECT_STREQ(raised.what(), doing);
    }
}

INSTANTIATE_TEST_SUITE_P(
    , BadDefinition,
    testing::Values(
        BadCase{"NoHeader", "", PlatformError::EndOfFile, "UB.mnu, line 1: the file has no header line"},
        BadCase{"TooDeepProgram", "T\r\nA\r\n>>B^K", PlatformError::InvalidIndex,
                "UB.mnu, line 3: there is no heading one level above this entry"},
        BadCase{"TooDeepHeading", "T\r\nA\r\n>>>B", PlatformError::InvalidIndex,
                "UB.mnu, line 3: there is no heading one level above this entry"},
        BadCase{"DeepHeadingClosedByShallowOne", "T\r\nA\r\n>B\r\nC\r\n>>D^K", PlatformError::InvalidIndex,
                "UB.mnu, line 5: there is no heading one level above this entry"},
        BadCase{"NoHeadingAtAll", "T\r\n>A^K", PlatformError::InvalidIndex,
                "UB.mnu, line 2: there is no heading one level above this entry"},
        BadCase{"DuplicateKey", "T\r\nA^K\r\nB\r\n>C^K", PlatformError::AlreadyExists,
                "UB.mnu, line 4: the key K is there already"},
        BadCase{"NumberAsKey", "T\r\nA^123", PlatformError::InvalidName,
                "UB.mnu, line 2: the key 123 is a number"}),
    [](const auto& test) { return test.param.name; });

TEST(MenuDefinition, CountsEntriesInSixteenBits) {
    std::string file = "T\r";
    for (int i = 0; i < 32767; ++i)
        file += "A\r";
    EXPECT_EQ(ParseMenuDefinition(file, "UB.mnu").entries.size(), 32767U);
    try {
        ParseMenuDefinition(file + "A", "UB.mnu");
        FAIL() << "no error";
    } catch (const RunTimeError& raised) {
        EXPECT_STREQ(raised.what(), "UB.mnu, line 32769: more entries than a menu can count");
    }
}

} // namespace
} // namespace obrin
