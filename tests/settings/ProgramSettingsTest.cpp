#include "settings/ProgramSettings.h"

#include "common/RunTimeError.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace obrin {
namespace {

// The value that a file gives a setting.
std::optional<std::string> ValueOf(std::string_view key, std::string_view file) {
    const auto setting = std::ranges::find(settings, key, &Setting::key);
    return ParseSettings(file, "a.ini").at(static_cast<std::size_t>(setting - settings.begin()));
}

TEST(SettingsPath, IsTheTrimmedProgramKeyBelowTheTemporaryFolder) {
    EXPECT_EQ(SettingsPath("C:\\Temp", " Core\\A B "), "C:\\Temp\\Ini\\Core\\A B.ini");
    EXPECT_EQ(SettingsPath("", "A"), "\\Ini\\A.ini") << "without a temporary folder";
}

// In this string table, the text of an id is the id itself.
TEST(DefaultSettings, MakeTheFileOfANewProgram) {
    const auto defaults = DefaultSettings("CSBackup", [](int id) { return std::to_string(id); });
    EXPECT_EQ(FormatSettings(defaults), "Program           =     CSBackup\r\n"
                                        "HelpFile          =     102CSBackup\r\n"
                                        "SaveToAsStart     =     \r\n"
                                        "Orientation       =     104\r\n"
                                        "Height            =     105\r\n"
                                        "Width             =     106\r\n"
                                        "Lines             =     107\r\n"
                                        "Columns           =     108\r\n"
                                        "FontSize          =     109\r\n"
                                        "TopMargin         =     110\r\n"
                                        "BottomMargin      =     111\r\n"
                                        "LeftMargin        =     112\r\n"
                                        "RightMargin       =     113\r\n");
}

TEST(FormatSettings, TrimsAValue) {
    SettingValues values;
    values[0] = "  A B ";
    EXPECT_TRUE(FormatSettings(values).starts_with("Program           =     A B\r\n"));
}

TEST(ParseSettings, ReadsAValueOnEachLine) {
    const std::string file = "Width=8.5\r\nLines=54\rColumns=220\nHeight=11";
    EXPECT_EQ(ValueOf("Width", file), "8.5");
    EXPECT_EQ(ValueOf("Lines", file), "54");
    EXPECT_EQ(ValueOf("Columns", file), "220") << "a lone LF ends a line too";
    EXPECT_EQ(ValueOf("Height", file), "11");
}

TEST(ParseSettings, TrimsKeyOrValue) {
    EXPECT_EQ(ValueOf("Lines", "  Lines  =  7 8  \r\n"), "7 8");
}

TEST(ParseSettings, ReadsAnEmptyValue) {
    EXPECT_EQ(ValueOf("Lines", "Lines =\r\n"), "");
}

TEST(ParseSettings, ReturnsNothingForAMissingSetting) {
    EXPECT_EQ(ValueOf("Lines", "Width=8.5\r\n"), std::nullopt);
}

TEST(ParseSettings, EndsAValueAtASecondEqualsSign) {
    EXPECT_EQ(ValueOf("Lines", "Lines = a=b=c\r\n"), "a");
}

TEST(ParseSettings, LastLineOfASettingCounts) {
    EXPECT_EQ(ValueOf("Lines", "Lines=7\r\nLines=8\r\n"), "8");
}

TEST(ParseSettings, IgnoresAnUnknownKey) {
    EXPECT_EQ(ValueOf("Lines", "lines=7\r\nLINES=8\r\nLine=9\r\n\tLines=1\r\n=\r\n"), std::nullopt);
}

TEST(ParseSettings, RefusesALineWithoutAnEqualsSign) {
    try {
        ParseSettings("Lines=7\r\n\r\nWidth=1\r\n", "a.ini");
        FAIL() << "nothing was thrown";
    } catch (const RunTimeError& error) {
        EXPECT_STREQ(error.what(), "a.ini, line 2: there is no \"=\"");
    }
}

} // namespace
} // namespace obrin
