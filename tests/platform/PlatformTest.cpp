#include "common/RunTimeError.h"
#include "platform/File.h"
#include "platform/Picture.h"
#include "platform/ScratchFolder.h"
#include "platform/SupportLibrary.h"
#include "platform/Workstation.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

TEST(SupportLibrary, KeepsTextsInTheRegistry) {
    const SupportLibrary corvel;
    const char* key = "Software\\ObrinTest\\Deep";
    EXPECT_EQ(corvel.GetRegValue(HKEY_LOCAL_MACHINE, key, "Text"), "") << "missing reads as empty";
    for (const std::string text : {"UB.mnu", "", "\xE4\xDC \x80"}) {
        corvel.SetRegValue(HKEY_LOCAL_MACHINE, key, "Text", text);
        EXPECT_EQ(corvel.GetRegValue(HKEY_LOCAL_MACHINE, key, "Text"), text);
    }
    const DWORD number = 5;
    RegSetKeyValueA(HKEY_LOCAL_MACHINE, key, "Number", REG_DWORD, &number, sizeof number);
    EXPECT_EQ(corvel.GetRegValue(HKEY_LOCAL_MACHINE, key, "Number"), "") << "no text";
    RegSetKeyValueA(HKEY_LOCAL_MACHINE, key, "Open", REG_SZ, "abc", 3); // stored without its NUL
    EXPECT_EQ(corvel.GetRegValue(HKEY_LOCAL_MACHINE, key, "Open"), "abc");
    RegDeleteTreeA(HKEY_LOCAL_MACHINE, "Software\\ObrinTest");
}

TEST(Workstation, UpperCaseIsTheCodePages) {
    EXPECT_EQ(UpperCase("aZ9\\"), "AZ9\\");
    if (GetACP() == 1252) {
        EXPECT_EQ(UpperCase("\xE4\xFF"), "\xC4\x9F");
    }
    EXPECT_EQ(UpperCase(""), "");
}

TEST(Workstation, EnvironmentIsReadAfresh) {
    SetEnvironmentVariableA("OBRIN_TEST", "C:\\Tessel");
    EXPECT_EQ(EnvironmentVariable("OBRIN_TEST"), "C:\\Tessel");
    SetEnvironmentVariableA("OBRIN_TEST", nullptr);
    EXPECT_EQ(EnvironmentVariable("OBRIN_TEST"), "");
}

TEST(Picture, IsScaledWithTheScreen) {
    const test::ScratchFolder folder;
    // 2 x 1 pixels of 24 bits.
    std::string bmp("BM\x3E\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\2\0\0\0\1\0\0\0\1\0\x18\0", 30);
    bmp.resize(62);
    WriteFileBytes("p.bmp", bmp);
    const UniqueBitmap picture = LoadPicture("p.bmp");
    EXPECT_EQ(PictureSize(picture.get()).cx, 2);
    const SIZE scaled = PictureSize(ScalePicture(picture.get(), 192).get());
    EXPECT_EQ(scaled.cx, 4);
    EXPECT_EQ(scaled.cy, 2);
    for (const std::string& bad :
         {std::string(), std::string("BM"), bmp.substr(0, 20), std::string(100, '\0')}) {
        WriteFileBytes("p.bmp", bad);
        EXPECT_THROW(LoadPicture("p.bmp"), RunTimeError);
    }
}

} // namespace
} // namespace obrin
