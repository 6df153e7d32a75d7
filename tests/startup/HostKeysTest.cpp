#include "startup/HostKeys.h"

#include "support/CodePage.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace obrin {
namespace {

using Codes = std::vector<std::uint8_t>;

Codes CodesOf(const char* command) {
    return HostKeyCodes(command, test::UpperCase, test::IsLeadByte);
}

TEST(HostKeyCodes, AreThoseOfUpperCaseCharacters) {
    EXPECT_EQ(CodesOf("aZ9 .\xFF"), (Codes{'A', 'Z', '9', ' ', '.', 255}));
}

TEST(HostKeyCodes, BackslashIsTheKey220) {
    EXPECT_EQ(CodesOf("\\a\\"), (Codes{220, 'A', 220}));
}

TEST(HostKeyCodes, BackslashIsTheKey220WhereThatIsALowerCaseLetter) {
    const UpperCaser greek = [](std::string text) {
        std::ranges::replace(text, '\xDC', '\xA2');
        return text;
    };
    EXPECT_EQ(HostKeyCodes("\\\xDC", greek, nullptr), (Codes{220, 0xA2}));
}

TEST(HostKeyCodes, TwoByteCharacterIsTwoCodes) {
    EXPECT_EQ(CodesOf("\x81\\\\"), (Codes{0x81, '\\', 220}));
}

TEST(HostKeyCodes, CrLfIsOneEnterKey) {
    EXPECT_EQ(CodesOf("a\r\nb\r\r\n"), (Codes{'A', 13, 'B', 13, 13}));
}

TEST(HostKeyCodes, LoneLfIsItsOwnCode) {
    EXPECT_EQ(CodesOf("\na\nb"), (Codes{10, 'A', 10, 'B'}));
}

TEST(LoadAndRunCommand, IsTwoLines) {
    EXPECT_EQ(LoadAndRunCommand("Core\\Programs\\CSBackup"), "Load Core\\Programs\\CSBackup\rRun\r");
}

TEST(StartSystemCommand, AnswersTheStartProgramWithTheSystemCode) {
    EXPECT_EQ(StartSystemCommand("UB"), "Load Core\\StartSys\rRun\rUB\r");
}

TEST(HostStartArguments, HaveThePlainNumber) {
    EXPECT_EQ(HostStartArguments(5), "run core\\start -5");
}

TEST(StationCaption, HasAtLeastTwoDigits) {
    EXPECT_EQ(StationCaption(5), "Obrin-05");
    EXPECT_EQ(StationCaption(12), "Obrin-12");
}

} // namespace
} // namespace obrin
