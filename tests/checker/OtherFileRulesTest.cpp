#include "checker/OtherFileRules.h"
#include "startup/UserRecords.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

// Reports on a file with these user records. The user anna runs the checker.
std::string ReportOn(const std::vector<std::pair<std::string, std::int16_t>>& users) {
    std::string bytes;
    for (const auto& [name, wsid] : users)
        bytes += UserWsidRecord(name, wsid);
    return Report(CheckUserRecords("F", bytes, "anna"));
}

TEST(UserRecordRules, FindNothingIfEachUserHasANumber) {
    EXPECT_EQ(ReportOn({{"anna", 1}, {"bert", 99}}), "");
}

TEST(UserRecordRules, WarnOfASecondRecordAndIgnoreTheNumberInTheFirst) {
    EXPECT_EQ(
        ReportOn({{"anna", -1}, {"anna", 5}}),
        "F: warning: the user anna has the records 1 and 2: the last one counts; remove the others\r\n");
}

TEST(UserRecordRules, WarnOfNumbersOutsideOneToNinetyNine) {
    for (const std::int16_t wsid : std::initializer_list<std::int16_t>{0, 100})
        EXPECT_EQ(ReportOn({{"anna", wsid}}),
                  "F: warning: record 1 gives the user anna the workstation number " + std::to_string(wsid) +
                      ": it must be from 1 to 99; remove the record, so that the menu asks for a number\r\n");
}

TEST(UserRecordRules, TellWhetherANegativeNumberStopsThisUserOrAnother) {
    for (const auto& [user, effect] :
         {std::pair{"anna", Effect::WaitsForEver}, {"bert", Effect::FailsForOthers}})
        EXPECT_EQ(CheckUserRecords("F", UserWsidRecord(user, -7), "anna").at(0).effect, effect) << user;
}

TEST(UserRecordRules, WarnOfUsersWithTheSameNumber) {
    EXPECT_EQ(
        ReportOn({{"anna", 5}, {"bert", 5}}),
        "F: warning: the users anna and bert both have the workstation number 5: they cannot work at the "
        "same time; remove the record of one, so that the menu asks for another number\r\n");
}

TEST(UserRecordRules, WarnOfUsersThatDifferInCaseAlone) {
    EXPECT_EQ(
        ReportOn({{"Anna", 1}, {"anna", 2}}),
        "F: warning: the users Anna and anna differ in case alone: Windows takes them for one user, whose "
        "number depends on how the name is typed; give both records the same number\r\n");
}

TEST(UserRecordRules, AcceptTheSameNumberForTwoSpellingsOfOneUser) {
    EXPECT_EQ(ReportOn({{"Anna", 1}, {"anna", 1}}), "");
}

TEST(UpdateRegisterRules, WarnOfBytesThatAreNoDigits) {
    EXPECT_EQ(CheckUpdateRegister("F", "001\r\n0").front().trouble.problem, "byte 4 is no digit");
}

TEST(UpdateRegisterRules, WarnOfAnIncompleteRecordAtTheEnd) {
    EXPECT_EQ(CheckUpdateRegister("F", "0050").front().trouble.problem, "the last record is cut off");
}

} // namespace
} // namespace obrin
