#include "startup/HostKeys.h"

#include "support/CodePage.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace obrin {
namespace {

using Codes = std::vector<std::uint8_t>;

TEST(HostKeyCodes, FollowTheCharactersOfTheCommand) {
    struct {
        const char* rule;
        const char* command;
        Codes codes;
    } const cases[] = {
        {"letters become upper case", "aZ9 .\xFF", {'A', 'Z', '9', ' ', '.', 255}},
        {"a backslash is the key 220", "\\a\\", {220, 'A', 220}},
        {"a two-byte character is two codes, even if the second is that of a backslash",
         "\x81\\\\",
         {0x81, '\\', 220}},
        {"CR LF and a lone CR are one Enter key each", "a\r\nb\r\r\n", {'A', 13, 'B', 13, 13}},
        {"a lone LF is sent as code 10", "\na\nb", {10, 'A', 10, 'B'}},
    };
    for (const auto& [rule, command, codes] : cases)
        EXPECT_EQ(HostKeyCodes(command, test::UpperCase, test::IsLeadByte), codes) << rule;
}

TEST(HostKeyCodes, BackslashIsKey220EvenIf220IsALowerCaseLetter) {
    const UpperCaser greek = [](std::string text) {
        std::ranges::replace(text, '\xDC', '\xA2');
        return text;
    };
    EXPECT_EQ(HostKeyCodes("\\\xDC", greek, nullptr), (Codes{220, 0xA2}));
}

TEST(LoadAndRunCommand, IsTwoLines) {
    EXPECT_EQ(LoadAndRunCommand("Core\\Programs\\CSBackup"), "Load Core\\Programs\\CSBackup\rRun\r");
}

TEST(StartSystemCommand, AnswersTheStartProgramWithTheSystemCode) {
    EXPECT_EQ(StartSystemCommand("UB"), "Load Core\\StartSys\rRun\rUB\r");
}

TEST(HostStartArguments, HaveTheNumberWithoutALeadingZero) {
    EXPECT_EQ(HostStartArguments(5), "run core\\start -5");
}

TEST(StationCaption, HasAtLeastTwoDigits) {
    EXPECT_EQ(StationCaption(5), "Obrin-05");
    EXPECT_EQ(StationCaption(12), "Obrin-12");
}

} // namespace
} // namespace obrin
