#include "settings/ProgramSettings.h"

#include "common/RunTimeError.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace obrin {
namespace {

// Returns the value of a setting in a file.
std::optional<std::string> ValueOf(std::string_view key, std::string_view file) {
    const auto setting = std::ranges::find(settings, key, &Setting::key);
    return ParseSettings(file, "a.ini").at(static_cast<std::size_t>(setting - settings.begin()));
}

TEST(SettingsPath, IsTheTrimmedProgramKeyBelowTheTemporaryFolder) {
    EXPECT_EQ(SettingsPath("C:\\Temp", " Core\\A B "), "C:\\Temp\\Ini\\Core\\A B.ini");
    EXPECT_EQ(SettingsPath("", "A"), "\\Ini\\A.ini") << "without a temporary folder";
}

// In this string table, the text of an id is the id itself.
TEST(DefaultSettings, FillTheSettingsFileOfANewProgram) {
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
    struct {
        const char* rule;
        const char* file;
        std::optional<std::string> lines;
    } const cases[] = {
        {"CR LF ends a line", "Width=8.5\r\nLines=54\r\nHeight=11", "54"},
        {"a lone CR ends a line", "Width=8.5\rLines=54\rHeight=11", "54"},
        {"a lone LF ends a line", "Width=8.5\nLines=54\nHeight=11", "54"},
        {"key and value are trimmed", "  Lines  =  7 8  \r\n", "7 8"},
        {"a value may be empty", "Lines =\r\n", ""},
        {"a second equals sign ends the value", "Lines = a=b=c\r\n", "a"},
        {"the last line of a setting counts", "Lines=7\r\nLines=8\r\n", "8"},
        {"a setting may be missing", "Width=8.5\r\n", std::nullopt},
        {"unknown keys are ignored", "lines=7\r\nLine=9\r\n\tLines=1\r\n=\r\n", std::nullopt},
    };
    for (const auto& [rule, file, lines] : cases)
        EXPECT_EQ(ValueOf("Lines", file), lines) << rule;
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
