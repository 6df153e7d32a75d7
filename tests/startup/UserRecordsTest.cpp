#include "startup/UserRecords.h"

#include <gtest/gtest.h>

namespace obrin {

static const std::string anna = UserWsidRecord("anna", 3);
static const std::string bert = UserWsidRecord("bert", 7);

TEST(UserWsidRecord, IsNameThenNumberThenZeros) {
    EXPECT_EQ(UserWsidRecord(" anna ", 0x1234),
              "anna" + std::string(96, ' ') + "\x34\x12" + std::string(100, '\0'));
}

TEST(UserWsidRecord, CutsALongName) {
    EXPECT_EQ(UserWsidRecord(std::string(120, 'n'), 42).substr(0, 101), std::string(100, 'n') + '\x2A');
}

TEST(ReadUserRecords, ReadsSigned16BitNumbers) {
    EXPECT_EQ(ReadUserRecords(UserWsidRecord("anna", 300)).at(0).wsid, 300);
    EXPECT_EQ(ReadUserRecords(UserWsidRecord("anna", -2)).at(0).wsid, -2);
}

TEST(ReadUserRecords, LastRecordMayEndAfterItsNumber) {
    EXPECT_EQ(ReadUserRecords(anna + bert.substr(0, 102)).size(), 2U);
    EXPECT_EQ(ReadUserRecords(anna + bert.substr(0, 101)).size(), 1U) << "a fragment is no record";
}

TEST(ScanUserRecords, FindsTheNumberInTheLastRecordOfTheUser) {
    EXPECT_EQ(ScanUserRecords(bert + anna, " anna ").wsid, 3);
    EXPECT_EQ(ScanUserRecords(anna + UserWsidRecord("anna", 9) + bert, "anna").wsid, 9);
}

TEST(ScanUserRecords, FindsZeroWithoutARecordOfExactlyThatName) {
    for (const char* name : {"Anna", "ann", "annabel", ""})
        EXPECT_EQ(ScanUserRecords(anna + bert, name).wsid, 0) << name;
}

TEST(ScanUserRecords, CountsTheRecordsOfAllUsers) {
    EXPECT_EQ(ScanUserRecords(anna + bert, "anna").recordsRead, 2U);
}

TEST(ParseWsidAnswer, TakesAWholeNumberFromOneToNinetyNine) {
    for (const auto& [answer, wsid] : {std::pair{"1", 1}, {"99", 99}, {" 12 ", 12}, {"5.0", 5}})
        EXPECT_EQ(ParseWsidAnswer(answer), wsid) << answer;
}

TEST(ParseWsidAnswer, RefusesEverythingElse) {
    for (const char* answer : {"", "0", "100", "2.5", "-1", "abc", "5x", "1 2", "1e2"})
        EXPECT_EQ(ParseWsidAnswer(answer), std::nullopt) << answer;
}

TEST(MarkerFileName, HasABlankBeforeTheNumber) {
    EXPECT_EQ(MarkerFileName(5), "Menu 5.txt");
    EXPECT_EQ(MarkerFileName(12), "Menu 12.txt");
}

} // namespace obrin
