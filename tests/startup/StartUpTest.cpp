#include "startup/StartUp.h"

#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

namespace obrin {

// HostConfigurationTest tests how the text changes.
TEST(StartUp, RewritesTheConfigurationBeforeItShowsTheMenu) {
    const test::ScratchFolder folder;
    CreateFolder("Core");
    WriteFileBytes("FennConfig.Sys", "drive a\r\nFiles 1\r\n\xE4last");
    EXPECT_TRUE(CreateHardLinkA("before", "FennConfig.Sys", nullptr));
    UniqueHandle reader;
    for (int start = 1; start <= 2; ++start) {
        std::string seen;
        Main({.windowClass = "ObrinTest.NoMenu", .caption = "ObrinTest", .show = [&] {
                  seen = ReadFileBytes("FennConfig.Sys");
              }});
        EXPECT_EQ(seen, "Drive S," + ShortPath(CurrentFolder()) + ",X,\\\r\nFiles 1\r\n\xE4last\r\n");
        EXPECT_EQ(ReadFileBytes("Core\\TempOut.tmp"), "\r\nFiles 1\r\n\xE4last\r\n");
        // From now on, nobody may write the file. The next start must see that it is right already.
        reader.reset(
            CreateFileA("FennConfig.Sys", GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    }
    EXPECT_TRUE(ReadFileBytes("before").starts_with("drive a")) << "replaced, not written in place";
}

} // namespace obrin
