#include "checker/OtherFileRules.h"
#include "startup/UserRecords.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

// The findings on records of these users, for the user anna.
std::string Records(const std::vector<std::pair<std::string, std::int16_t>>& users) {
    std::string bytes;
    for (const auto& [name, wsid] : users)
        bytes += UserWsidRecord(name, wsid);
    return Report(CheckUserRecords("F", bytes, "anna"));
}

TEST(UserRecordRules, FindNothingWhereEachUserHasANumber) {
    EXPECT_EQ(Records({{"anna", 1}, {"bert", 99}}), "");
}

TEST(UserRecordRules, LookAtTheLastRecordOfAUser) {
    EXPECT_EQ(
        Records({{"anna", -1}, {"anna", 5}}),
        "F: warning: the user anna has the records 1 and 2: the last one counts; remove the others\r\n");
}

TEST(UserRecordRules, WarnOfNumbersWithoutAHost) {
    for (const std::int16_t wsid : std::initializer_list<std::int16_t>{0, 100})
        EXPECT_EQ(Records({{"anna", wsid}}),
                  "F: warning: record 1 gives the user anna the workstation number " + std::to_string(wsid) +
                      ": only 1 to 99 lead to a host; remove the record, and the "
                      "menu asks\r\n");
}

TEST(UserRecordRules, WarnOfUsersThatDifferInCaseAlone) {
    EXPECT_EQ(
        Records({{"Anna", 1}, {"anna", 2}}),
        "F: warning: the users Anna and anna differ in case alone: Windows takes them for one user, whose "
        "number depends on how the name is typed; give both records the same number\r\n");
}

TEST(UserRecordRules, LetOneUserInTwoSpellingsHaveOneNumber) {
    EXPECT_EQ(Records({{"Anna", 1}, {"anna", 1}}), "");
}

TEST(UpdateRegisterRules, WarnOfBytesThatAreNoDigits) {
    EXPECT_EQ(CheckUpdateRegister("F", "001\r\n0").front().trouble.problem, "byte 4 is no digit");
}

} // namespace
} // namespace obrin
