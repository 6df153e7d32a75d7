#include "settings/ProgramSettings.h"

#include "common/RunTimeError.h"

#include <gtest/gtest.h>

namespace obrin {

TEST(Settings, AreReadLineByLine) {
    const auto lines = [](std::string_view file) { return ParseSettings(file, "a.ini")[6]; };
    EXPECT_EQ(lines("  Lines  =  7 8  \r\n"), "7 8");
    EXPECT_EQ(lines("Lines = a=b=c\r\n"), "a") << "a value ends at the second =";
    EXPECT_EQ(lines("Lines =\r\n"), "");
    EXPECT_EQ(lines("Width=1\rLines=7\nHeight=2"), "7") << "a lone CR ends a line, and so does a lone LF";
    EXPECT_EQ(lines("Lines=7\r\nLines=8\r\n"), "8") << "the last one counts";
    EXPECT_EQ(lines("lines=7\r\nLINES=8\r\nLine=9\r\n\tLines=1\r\n=\r\n===\r\n"), std::nullopt);
    EXPECT_THROW(lines(std::string(1000, '\0')), RunTimeError);
    try {
        lines("Lines=7\r\n\r\nWidth=1\r\n");
        ADD_FAILURE();
    } catch (const RunTimeError& error) {
        EXPECT_STREQ(error.what(), "a.ini, line 2: there is no \"=\"");
    }
}

} // namespace obrin
