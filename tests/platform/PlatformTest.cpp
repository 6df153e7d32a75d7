#include "platform/SupportLibrary.h"
#include "platform/Workstation.h"
#include "support/LocalMachine.h"

#include <gtest/gtest.h>

namespace obrin {
namespace {

constexpr const char* key = "Software\\ObrinTest\\Deep";

struct Library : testing::Test {
    std::string Get(const char* name) const { return corvel.GetRegValue(HKEY_LOCAL_MACHINE, key, name); }
    void Set(const std::string& text) const { corvel.SetRegValue(HKEY_LOCAL_MACHINE, key, "Text", text); }

    const test::LocalMachine machine;
    const SupportLibrary corvel;
};

TEST_F(Library, ReadsTheTextsThatItStores) {
    for (const std::string text : {"UB.mnu", "", "\xE4\xDC \x80"}) {
        Set(text);
        EXPECT_EQ(Get("Text"), text);
    }
}

TEST_F(Library, ReturnsAnEmptyTextForOtherTypesAndMissingValues) {
    machine.Set(key, "Number", REG_DWORD, "abcd");
    EXPECT_EQ(Get("Number"), "");
    EXPECT_EQ(Get("Missing"), "");
}

TEST_F(Library, ReadsAnUnterminatedTextWithoutExpandingIt) {
    machine.Set(key, "Open", REG_EXPAND_SZ, "%TEMP%");
    EXPECT_EQ(Get("Open"), "%TEMP%");
}

// Calls the routine itself, as other programs do: SupportLibrary drops what it returns.
TEST_F(Library, SetRegValueReturnsAnErrorIfNothingIsStored) {
    const auto set = reinterpret_cast<LONG(__stdcall*)(HKEY, const char*, const char*, const char*)>(
        GetProcAddress(GetModuleHandleA("Corvel.dll"), "SetRegValue"));
    EXPECT_NE(set(nullptr, key, "Text", ""), ERROR_SUCCESS);
}

TEST(UpperCase, FollowsTheCodePage) {
    if (GetACP() != 1252)
        GTEST_SKIP() << "the letters of this test are those of code page 1252";
    EXPECT_EQ(UpperCase("z\xE4\xDF"), "Z\xC4\xDF");
}

} // namespace
} // namespace obrin
