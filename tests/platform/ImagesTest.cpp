// What the programs and the library tell Windows about themselves in their headers, version resources
// and manifests. A mistake there would show nowhere else.

#include "platform/Workstation.h"
#include "support/Machine.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <vector>

namespace obrin::test {
namespace {

std::string PathOf(const char* image) {
    return OwnProgram().replace_filename(image).string();
}

class Image : public testing::TestWithParam<const char*> {
protected:
    const std::string file = PathOf(GetParam());
    // Mapped, but not run. The lowest two bits of such a handle are flags, not part of the address.
    const std::uintptr_t mapped = reinterpret_cast<std::uintptr_t>(
        LoadLibraryExA(file.c_str(), nullptr, LOAD_LIBRARY_AS_IMAGE_RESOURCE));
    const char* base = reinterpret_cast<const char*>(mapped & ~std::uintptr_t{3});
    const IMAGE_NT_HEADERS& headers = *reinterpret_cast<const IMAGE_NT_HEADERS*>(
        base + reinterpret_cast<const IMAGE_DOS_HEADER*>(base)->e_lfanew);
};

INSTANTIATE_TEST_SUITE_P(, Image, testing::Values("ObrinMenu.exe", "ObrinCheck.exe", "Corvel.dll"));

TEST_P(Image, NeedsWindows10AndHasItsProtectionsOn) {
    EXPECT_EQ(headers.OptionalHeader.MajorSubsystemVersion, 10);
    const WORD all = IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE | IMAGE_DLLCHARACTERISTICS_NX_COMPAT |
                     (sizeof(void*) == 8 ? IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA : 0);
    EXPECT_EQ(headers.OptionalHeader.DllCharacteristics & all, all);
}

// With this flag, a lost connection to the share does not end a running menu.
TEST_P(Image, IsCopiedToSwapWhenItRunsFromAShare) {
    EXPECT_TRUE(headers.FileHeader.Characteristics & IMAGE_FILE_NET_RUN_FROM_SWAP);
}

// Windows loads these from its own folder, even if a file in the program's folder has the same name.
// Every operator may write to that folder. The manifest tells where COMCTL32.DLL is.
TEST_P(Image, LoadsOnlyLibrariesOfTheSystem) {
    const std::set<std::string> known{"ADVAPI32.DLL", "COMCTL32.DLL", "GDI32.DLL",    "KERNEL32.DLL",
                                      "MSVCRT.DLL",   "OLE32.DLL",    "OLEAUT32.DLL", "SHELL32.DLL",
                                      "SHLWAPI.DLL",  "USER32.DLL"};
    const DWORD place = headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (const auto* import = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + place);
         import->Name != 0; ++import)
        EXPECT_TRUE(known.contains(UpperCase(base + import->Name))) << base + import->Name;
}

TEST_P(Image, HasTheVersionOfTheProject) {
    std::vector<char> version(GetFileVersionInfoSizeA(file.c_str(), nullptr));
    GetFileVersionInfoA(file.c_str(), 0, static_cast<DWORD>(version.size()), version.data());
    void* text = nullptr;
    UINT length = 0;
    // American English in code page 1252
    VerQueryValueA(version.data(), "\\StringFileInfo\\040904E4\\FileVersion", &text, &length);
    EXPECT_STREQ(static_cast<const char*>(text), OBRIN_PROJECT_VERSION);
}

// The text of a program's manifest.
std::string ManifestOf(const char* program) {
    const HMODULE file = LoadLibraryExA(PathOf(program).c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    const HRSRC found = FindResourceA(file, MAKEINTRESOURCEA(1), MAKEINTRESOURCEA(24)); // RT_MANIFEST
    const auto* text = static_cast<const char*>(LockResource(LoadResource(file, found)));
    return {text, SizeofResource(file, found)};
}

TEST(MenuManifest, AsksForThemedControlsAndFollowsTheDpiOfEachScreen) {
    const std::string manifest = ManifestOf("ObrinMenu.exe");
    EXPECT_NE(manifest.find(R"("Microsoft.Windows.Common-Controls" version="6.)"), std::string::npos);
    EXPECT_NE(manifest.find(">PerMonitorV2, system</dpiAwareness>"), std::string::npos);
}

// Without a requested execution level, Windows virtualizes the files that the 32-bit menu may not write. The
// checker must do without: it opens files only to try whether they can be written, and the virtualization
// would copy them.
TEST(Manifests, OnlyTheCheckerAsksForARunLevel) {
    EXPECT_EQ(ManifestOf("ObrinMenu.exe").find("<requestedExecutionLevel"), std::string::npos);
    EXPECT_NE(ManifestOf("ObrinCheck.exe").find(R"(<requestedExecutionLevel level="asInvoker")"),
              std::string::npos);
}

} // namespace
} // namespace obrin::test
