#include "platform/File.h"

#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

namespace obrin {

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
