#include "platform/File.h"

#include "common/RunTimeError.h"
#include "platform/Folder.h"
#include "platform/ScratchFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace obrin {
namespace {

std::vector<std::string> Sorted(std::vector<std::string> names) {
    std::ranges::sort(names);
    return names;
}

TEST(File, FirstLineIsReadInFewSteps) {
    const test::ScratchFolder folder;
    const std::string longLine(10'000'000, 'x');
    const std::string edge(4095, 'x'); // its line end stands on either side of the first step's end
    for (const auto& [bytes, line] : {std::pair<std::string, std::string>{"a\nb\r\nc", "a\nb"},
                                      {"a", "a"},
                                      {"\r\n", ""},
                                      {edge + "\r\nb", edge},
                                      {edge + "x\r\nb", edge + "x"},
                                      {longLine + "\rb", longLine}}) {
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
    EXPECT_EQ(ReadFileBytes("shared"), "abcXef");
}

TEST(File, ReplacingKeepsTheOldContentsUntilTheNewAreComplete) {
    const test::ScratchFolder folder;
    ReplaceFileBytes("f", "first");
    ReplaceFileBytes("f", "second");
    EXPECT_EQ(ReadFileBytes("f"), "second");
    EXPECT_EQ(Sorted(ListNormalFiles(".")), std::vector<std::string>{"f"}) << "nothing else is left behind";

    // What cannot be replaced stays, with nothing beside it.
    {
        const UniqueFile reader(
            CreateFileA("f", GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
        EXPECT_THROW(ReplaceFileBytes("f", "third"), RunTimeError);
    }
    CreateDirectoryA("d", nullptr);
    EXPECT_THROW(ReplaceFileBytes("d", "x"), RunTimeError);
    EXPECT_THROW(ReplaceFileBytes("missing\\f", "x"), RunTimeError);
    EXPECT_EQ(ReadFileBytes("f"), "second");
    EXPECT_EQ(ListNormalFiles("."), std::vector<std::string>{"f"});
}

TEST(File, ListingsShowNormalFilesOnly) {
    const test::ScratchFolder folder;
    for (const auto& [name, attributes] : {std::pair<const char*, DWORD>{"normal", FILE_ATTRIBUTE_NORMAL},
                                           {"readonly", FILE_ATTRIBUTE_READONLY},
                                           {"archived", FILE_ATTRIBUTE_ARCHIVE},
                                           {"hidden", FILE_ATTRIBUTE_HIDDEN},
                                           {"system", FILE_ATTRIBUTE_SYSTEM}}) {
        WriteFileBytes(name, "");
        SetFileAttributesA(name, attributes);
    }
    CreateDirectoryA("folder", nullptr);
    const auto names = Sorted(ListNormalFiles(CurrentFolder()));
    EXPECT_EQ(names, (std::vector<std::string>{"archived", "normal", "readonly"}));
    for (const char* name : {"normal", "readonly", "hidden", "folder", "*", "missing"}) {
        const bool listed = std::ranges::binary_search(names, name);
        EXPECT_EQ(NormalFileExists(name), listed) << name;
        EXPECT_EQ(FileExists(name), listed || name == std::string("hidden")) << name;
    }
    SetFileAttributesA("readonly", FILE_ATTRIBUTE_NORMAL);
    EXPECT_THROW(ListNormalFiles("missing"), RunTimeError);
}

TEST(File, ShortPathIsEmptyWhenItDoesNotFit) {
    const test::ScratchFolder folder;
    EXPECT_EQ(ShortPath(CurrentFolder()).size() > 2, true);
    EXPECT_EQ(ShortPath("C:\\missing\\folder"), "");
    std::string deep = CurrentFolder();
    while (deep.size() < 170) {
        deep += "\\abcdefgh";
        ASSERT_TRUE(CreateDirectoryA(deep.c_str(), nullptr));
    }
    const std::string shortened = ShortPath(deep);
    EXPECT_TRUE(shortened.empty() || shortened.size() < 164);
}

} // namespace
} // namespace obrin
