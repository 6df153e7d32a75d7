#include "startup/StartUp.h"

#include "common/RunTimeError.h"
#include "platform/File.h"
#include "platform/Folder.h"
#include "platform/ScratchFolder.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

std::string DriveLine() {
    return "Drive S," + ShortPath(CurrentFolder()) + ",X,\\\r\n";
}

TEST(StartUp, RewritesTheConfigurationBeforeItShowsTheMenu) {
    const test::ScratchFolder folder;
    CreateDirectoryA("Core", nullptr);
    WriteFileBytes("FennConfig.Sys", "DRIVE a\r\nFiles 1\r\n\r\ndrive b\r\n  \r\nDrive c\r\n\xE4last");
    std::string seen;
    Main([&] { seen = ReadFileBytes("FennConfig.Sys"); });
    EXPECT_EQ(seen, DriveLine() + "Files 1\r\n\xE4last\r\n");
    EXPECT_EQ(ReadFileBytes("Core\\TempOut.tmp"), "\r\nFiles 1\r\n\r\n\r\n  \r\n\r\n\xE4last\r\n")
        << "left on disk";
    Main([] {});
    EXPECT_EQ(ReadFileBytes("FennConfig.Sys"), seen) << "the next start changes nothing";
}

TEST(StartUp, FailsWithTheOldConfigurationIntact) {
    const test::ScratchFolder folder;
    const std::string old = "Drive old\r\n";
    WriteFileBytes("FennConfig.Sys", old);
    const auto fails = [] {
        bool shown = false;
        EXPECT_THROW(Main([&] { shown = true; }), RunTimeError);
        EXPECT_FALSE(shown);
    };
    fails(); // no Core folder
    EXPECT_EQ(ReadFileBytes("FennConfig.Sys"), old);
    CreateDirectoryA("Core", nullptr);
    CreateDirectoryA("Core\\TempOut.tmp", nullptr);
    fails();
    EXPECT_EQ(ReadFileBytes("FennConfig.Sys"), old);
    RemoveDirectoryA("Core\\TempOut.tmp");
    // Another program reads it and lets nobody write.
    const UniqueFile reader(
        CreateFileA("FennConfig.Sys", GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    fails();
    EXPECT_EQ(ReadFileBytes("FennConfig.Sys"), old);
}

} // namespace
} // namespace obrin
