#include "startup/UserRecords.h"

#include <gtest/gtest.h>

namespace obrin {

TEST(UserRecords, HaveTheirFieldsAtFixedPlaces) {
    EXPECT_EQ(UserWsidRecord("  anna ", 42), "anna" + std::string(96, ' ') + '\x2A' + std::string(101, '\0'));
    EXPECT_EQ(UserWsidRecord(std::string(120, 'n'), 300).substr(99, 4), std::string("n\x2C\x01\0", 4));
    EXPECT_EQ(MarkerFileName(-7), "Menu-7.txt");
}

TEST(UserRecords, ScanCountsRecordsAndLetsTheLastMatchWin) {
    const std::string anna = UserWsidRecord("anna", 3);
    const std::string other = UserWsidRecord("Anna", 4);
    struct {
        std::string file;
        int wsid;
        std::size_t records;
    } const cases[] = {
        {"", 0, 0},
        {anna + other, 3, 2},
        {anna + other + UserWsidRecord("anna", 9), 9, 3},
        {anna + UserWsidRecord("annabel", 7), 3, 2},
        {"x" + anna, 0, 1},                    // found at multiples of 202 only
        {other + anna.substr(0, 102), 3, 2},   // a last slot may stop behind its number
        {other + anna.substr(0, 101), 0, 1},   // a fragment is no record
        {UserWsidRecord("anna", 300), 300, 1}, // both bytes count
    };
    for (const auto& [file, wsid, records] : cases) {
        const auto scan = ScanUserRecords(file, " anna ");
        EXPECT_EQ(std::pair(int{scan.wsid}, scan.recordsRead), std::pair(wsid, records));
    }
}

TEST(UserRecords, AnswersAreWholeNumbersFromOneToNinetyNine) {
    for (const char* answer : {"", " ", "0", "100", "2.5", "abc", "-1", "5x", "99.5", "1e2", "nan", "1 2"})
        EXPECT_FALSE(ParseWsidAnswer(answer)) << answer;
    const std::pair<const char*, int> valid[] = {{"1", 1}, {"99", 99}, {" 12 ", 12}, {"5.0", 5}, {"+7", 7}};
    for (const auto& [answer, wsid] : valid)
        EXPECT_EQ(ParseWsidAnswer(answer), wsid) << answer;
}

} // namespace obrin
