#include "common/RunTimeError.h"
#include "maintenance/LocalMachine.h"
#include "platform/File.h"
#include "platform/Picture.h"
#include "platform/ScratchFolder.h"
#include "platform/SupportLibrary.h"

#include <gtest/gtest.h>

namespace obrin {

TEST(SupportLibrary, KeepsTextsInTheRegistry) {
    const test::LocalMachine machine;
    const SupportLibrary corvel;
    const char* key = "Software\\ObrinTest\\Deep";
    EXPECT_EQ(corvel.GetRegValue(HKEY_LOCAL_MACHINE, key, "Text"), "") << "missing reads as empty";
    for (const std::string text : {"UB.mnu", "", "\xE4\xDC \x80"}) {
        corvel.SetRegValue(HKEY_LOCAL_MACHINE, key, "Text", text);
        EXPECT_EQ(corvel.GetRegValue(HKEY_LOCAL_MACHINE, key, "Text"), text);
    }
    machine.Set(key, "Number", REG_DWORD, "abcd");
    EXPECT_EQ(corvel.GetRegValue(HKEY_LOCAL_MACHINE, key, "Number"), "") << "no text";
    machine.Set(key, "Open", REG_SZ, "abc"); // stored without its NUL
    EXPECT_EQ(corvel.GetRegValue(HKEY_LOCAL_MACHINE, key, "Open"), "abc");
}

TEST(Picture, IsScaledWithTheScreen) {
    const test::ScratchFolder folder;
    // 2 x 1 pixels of 24 bits.
    std::string bmp("BM\x3E\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\2\0\0\0\1\0\0\0\1\0\x18\0", 30);
    bmp.resize(62);
    WriteFileBytes("p.bmp", bmp);
    const SIZE scaled = PictureSize(ScalePicture(LoadPicture("p.bmp").get(), 192).get());
    EXPECT_EQ(scaled.cx, 4);
    EXPECT_EQ(scaled.cy, 2);
    for (const std::string& bad : {std::string(), bmp.substr(0, 20), std::string(100, '\0')}) {
        WriteFileBytes("p.bmp", bad);
        EXPECT_THROW(LoadPicture("p.bmp"), RunTimeError);
    }
}

} // namespace obrin
