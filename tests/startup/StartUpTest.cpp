#include "startup/StartUp.h"

#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

namespace obrin {

TEST(StartUp, RewritesTheConfigurationBeforeItShowsTheMenu) {
    const test::ScratchFolder folder;
    CreateFolder("Core");
    WriteFileBytes("FennConfig.Sys",
                   "DRIVE a\r\nFiles 1\r\n\r\ndrive b\n  \r\n\t\r\nDrivers\r\r\nMyDrive\r\nDriv\r\n"
                   " Drive\r\nDrive c\r\n\xE4last");
    const std::string kept = "\t\r\nMyDrive\r\nDriv\r\n Drive\r\n\xE4last\r\n";
    const std::string expected = "Drive S," + ShortPath(CurrentFolder()) + ",X,\\\r\nFiles 1\r\n" + kept;
    EXPECT_TRUE(CreateHardLinkA("before", "FennConfig.Sys", nullptr));
    UniqueHandle reader;
    const std::string blanked =
        "\r\nFiles 1\r\n\r\n\r\n  \r\n\t\r\n\r\n\r\nMyDrive\r\nDriv\r\n Drive\r\n\r\n\xE4last\r\n";
    for (const std::string& leftOnDisk : {blanked, "\r\nFiles 1\r\n" + kept}) {
        std::string seen;
        Main({.windowClass = "ObrinTest.NoMenu", .caption = "ObrinTest", .show = [&] {
                  seen = ReadFileBytes("FennConfig.Sys");
              }});
        EXPECT_EQ(seen, expected);
        EXPECT_EQ(ReadFileBytes("Core\\TempOut.tmp"), leftOnDisk);
        // The next start need not write it, and nobody may.
        reader.reset(
            CreateFileA("FennConfig.Sys", GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    }
    EXPECT_TRUE(ReadFileBytes("before").starts_with("DRIVE a")) << "replaced, not written in place";
}

} // namespace obrin
