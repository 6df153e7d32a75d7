#include "startup/UserRecords.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

TEST(UserRecords, HaveTheirFieldsAtFixedPlaces) {
    const std::string record = UserWsidRecord("  anna ", 42);
    ASSERT_EQ(record.size(), 202U);
    EXPECT_EQ(record.substr(0, 100), "anna" + std::string(96, ' '));
    EXPECT_EQ(record.substr(100, 2), std::string("\x2A\0", 2));
    EXPECT_EQ(UserWsidRecord(std::string(120, 'n'), 1).substr(99, 3), std::string("n\x01\0", 3));
}

TEST(UserRecords, ScanCountsRecordsAndLetsTheLastMatchWin) {
    const std::string anna = UserWsidRecord("anna", 3);
    const std::string other = UserWsidRecord("Anna", 4);
    const std::string again = UserWsidRecord("anna", 9);
    const std::string damaged = UserWsidRecord("anna", -2);
    struct {
        std::string file;
        int wsid;
        std::size_t records;
    } const cases[] = {
        {"", 0, 0},
        {anna + other, 3, 2},
        {anna + other + again, 9, 3},
        {other, 0, 1},
        {"x" + anna, 0, 1},                  // found at multiples of 202 only
        {other + anna.substr(0, 102), 3, 2}, // a last slot may stop behind its number
        {other + anna.substr(0, 101), 0, 1}, // a fragment is no record
        {anna + damaged, -2, 2},
        {UserWsidRecord("anna", 300), 300, 1}, // both bytes count
    };
    for (const auto& [file, wsid, records] : cases) {
        const auto scan = ScanUserRecords(file, " anna ");
        EXPECT_EQ(scan.wsid, wsid);
        EXPECT_EQ(scan.recordsRead, records);
    }
}

TEST(UserRecords, AnswersAreWholeNumbersFromOneToNinetyNine) {
    for (const char* answer : {"", " ", "0", "100", "2.5", "abc", "-1", "5x", "99.5", "1e2", "nan", "1 2"})
        EXPECT_FALSE(ParseWsidAnswer(answer)) << answer;
    const std::pair<const char*, int> valid[] = {{"1", 1}, {"99", 99}, {" 12 ", 12}, {"5.0", 5}, {"+7", 7}};
    for (const auto& [answer, wsid] : valid)
        EXPECT_EQ(ParseWsidAnswer(answer), wsid) << answer;
}

} // namespace
} // namespace obrin
