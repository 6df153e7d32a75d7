#include "platform/File.h"

#include "platform/ScratchFolder.h"

#include <gtest/gtest.h>

namespace obrin {

TEST(File, FirstLineIsReadInFewSteps) {
    const test::ScratchFolder folder;
    const std::string longLine(10'000'000, 'x');
    const std::string edge(4095, 'x'); // its line end stands on either side of the first step's end
    const std::pair<std::string, std::string> cases[] = {
        {"a\nb\r\nc", "a\nb"},
        {"a", "a"},
        {"\r\n", ""},
        {edge + "\r\nb", edge},
        {edge + "x\r\nb", edge + "x"},
        {longLine + "\rb", longLine},
    };
    for (const auto& [bytes, line] : cases) {
        WriteFileBytes("f", bytes);
        EXPECT_EQ(ReadFirstLine("f"), line);
    }
    WriteFileBytes("f", "");
    EXPECT_THROW(ReadFirstLine("f"), RunTimeError);
    EXPECT_THROW(ReadFirstLine("missing"), RunTimeError);
}

TEST(File, OthersMayReadAndWriteAnOpenFile) {
    const test::ScratchFolder folder;
    File mine("shared", File::Use::ReadWrite);
    File theirs("shared", File::Use::ReadWrite);
    theirs.Write("abcdef");
    mine.Seek(3);
    mine.Write("X");
    EXPECT_TRUE(MoveFileA("shared", "moved")) << "and replace it";
    EXPECT_EQ(ReadFileBytes("moved"), "abcXef");
}

TEST(File, ShortPathIsEmptyWhenItDoesNotFit) {
    const test::ScratchFolder folder;
    EXPECT_GT(ShortPath(CurrentFolder()).size(), 2U);
    EXPECT_EQ(ShortPath("C:\\missing\\folder"), "");
    std::string deep = CurrentFolder();
    while (deep.size() < 200) {
        CreateFolder(deep += "\\ab");
        char whole[MAX_PATH];
        const DWORD length = GetShortPathNameA(deep.c_str(), whole, sizeof whole);
        EXPECT_EQ(ShortPath(deep), length < 164 ? whole : "");
    }
}

} // namespace obrin
