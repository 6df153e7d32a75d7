#include "platform/File.h"

#include "support/HeldFile.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

struct FileTest : testing::Test {
    const test::ScratchFolder folder;
};

TEST_F(FileTest, OthersMayReadWriteAndReplaceAnOpenFile) {
    File mine("shared", File::Use::ReadWrite);
    File theirs("shared", File::Use::ReadWrite);
    theirs.Write("abcdef");
    mine.Seek(3);
    mine.Write("X");
    EXPECT_TRUE(MoveFileA("shared", "moved"));
    EXPECT_EQ(ReadFileBytes("moved"), "abcXef");
}

TEST_F(FileTest, WritingWaitsForAFileThatIsHeldForAMoment) {
    WriteFileBytes("f", "old contents");
    test::HeldFile scanner("f", FILE_SHARE_READ);
    scanner.ReleaseAfter(300);
    WriteFileBytes("f", "new");
    EXPECT_EQ(ReadFileBytes("f"), "new");
}

TEST_F(FileTest, ReadingWaitsForAFileThatIsHeldForAMoment) {
    WriteFileBytes("f", "text");
    test::HeldFile writer("f", 0);
    writer.ReleaseAfter(300);
    EXPECT_EQ(ReadFileIfThere("f"), "text");
}

TEST_F(FileTest, ReadingGivesUpOnAHeldFileAfterAboutASecond) {
    WriteFileBytes("f", "text");
    const test::HeldFile writer("f", 0);
    const ULONGLONG start = GetTickCount64();
    EXPECT_THROW(ReadFileBytes("f"), RunTimeError);
    const ULONGLONG waited = GetTickCount64() - start;
    EXPECT_GE(waited, 900U);
    EXPECT_LE(waited, 5000U);
}

TEST_F(FileTest, HiddenFileIsWritten) {
    WriteFileBytes("f", "old contents");
    SetFileAttributesA("f", FILE_ATTRIBUTE_HIDDEN);
    WriteFileBytes("f", "new");
    EXPECT_EQ(ReadFileBytes("f"), "new");
}

TEST_F(FileTest, FirstLineMayHaveAnyLength) {
    const std::string longLine(10'000, 'x');
    WriteFileBytes("f", longLine + "\r\nsecond");
    EXPECT_EQ(ReadFirstLine("f"), longLine);
}

TEST_F(FileTest, FirstLineOfAnEmptyFileIsAnError) {
    WriteFileBytes("f", "");
    EXPECT_THROW(ReadFirstLine("f"), RunTimeError);
}

TEST_F(FileTest, ShortPathOfAMissingFolderIsEmpty) {
    EXPECT_EQ(ShortPath("C:\\missing\\folder"), "");
}

TEST_F(FileTest, ShortPathOfMoreThan163CharactersIsEmpty) {
    EXPECT_GT(ShortPath(CurrentFolder()).size(), 2U);
    std::string deep = CurrentFolder();
    while (deep.size() < 200) {
        CreateFolder(deep += "\\ab");
        char whole[MAX_PATH];
        const DWORD length = GetShortPathNameA(deep.c_str(), whole, sizeof whole);
        EXPECT_EQ(ShortPath(deep), length < 164 ? whole : "");
    }
}

} // namespace
} // namespace obrin
