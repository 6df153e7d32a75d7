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
    return Report(CheckUserRecords("F", bytes, "anna", nullptr));
}

TEST(UserRecordRules, FindNothingWhereEachUserHasANumber) {
    EXPECT_EQ(Records({{"anna", 1}, {"bert", 99}}), "");
}

TEST(UserRecordRules, CallANegativeNumberAnError) {
    const std::string negative =
        "F: error: record 1 gives the user anna the workstation number -1: the menu of this "
        "user waits without a window; remove the record, and the menu asks\r\n";
    EXPECT_EQ(Records({{"anna", -1}}), negative);
}

TEST(UserRecordRules, TellWhomANegativeNumberStops) {
    const auto effectFor = [](const char* user) {
        return CheckUserRecords("F", UserWsidRecord("bert", -1), user, nullptr).front().effect;
    };
    EXPECT_EQ(effectFor("bert"), Effect::WaitsForEver);
    EXPECT_EQ(effectFor("anna"), Effect::FailsForOthers);
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

TEST(UserRecordRules, WarnOfANumberOfTwoUsers) {
    EXPECT_EQ(
        Records({{"anna", 3}, {"bert", 3}}),
        "F: warning: the users anna and bert both have the workstation number 3: they cannot work at the "
        "same time; remove one's record, and the menu asks\r\n");
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

TEST(UpdateRegisterRules, WarnOfAPartOfARecord) {
    EXPECT_EQ(CheckUpdateRegister("F", "0010").front().trouble.remedy, "cut the file to 3 bytes");
}

TEST(UpdateRegisterRules, FindNothingInWholeRecords) {
    EXPECT_TRUE(CheckUpdateRegister("F", "001002").empty());
}

TEST(ImageRules, ReadTheMachineOfAnImage) {
    std::string image("MZ" + std::string(0x3A, '\0') + "\x40" + std::string(3, '\0') + "PE");
    image += std::string("\0\0\x64\x86", 4);
    EXPECT_EQ(ImageMachine(image), Machine::Bits64);
    EXPECT_EQ(ImageMachine(image.substr(0, image.size() - 1)), std::nullopt) << "cut off";
    EXPECT_EQ(ImageMachine("MZ"), std::nullopt);
}

} // namespace
} // namespace obrin
