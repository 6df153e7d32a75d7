#include "common/RunTimeError.h"
#include "maintenance/LocalMachine.h"
#include "platform/File.h"
#include "platform/GroupBox.h"
#include "platform/Picture.h"
#include "platform/ScratchFolder.h"
#include "platform/SupportLibrary.h"
#include "platform/Workstation.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

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
    machine.Set(key, "Open", REG_EXPAND_SZ, "%TEMP%"); // stored without its NUL, and not expanded
    EXPECT_EQ(corvel.GetRegValue(HKEY_LOCAL_MACHINE, key, "Open"), "%TEMP%");
}

TEST(UpperCase, IsThatOfTheCodePage) {
    if (GetACP() == 1252) {
        EXPECT_EQ(UpperCase("z\xE4\xDF"), "Z\xC4\xDF");
    }
}

TEST(Images, AreForWindows10AndTakeNothingFromTheirOwnFolder) {
    // Loaded by Windows from the system's folder, whatever lies in the program's; the last one by the
    // manifest.
    const std::set<std::string> known{"ADVAPI32.DLL", "GDI32.DLL",    "KERNEL32.DLL", "MSVCRT.DLL",
                                      "OLE32.DLL",    "OLEAUT32.DLL", "SHELL32.DLL",  "SHLWAPI.DLL",
                                      "USER32.DLL",   "COMCTL32.DLL"};
    for (const char* name : {"ObrinMenu.exe", "ObrinCheck.exe", "Corvel.dll"}) {
        std::array<char, MAX_PATH> own;
        GetModuleFileNameA(nullptr, own.data(), own.size());
        const auto file = std::filesystem::path(own.data()).replace_filename(name).string();
        // Mapped without being linked; the handle's lowest bits say so.
        const auto mapped = reinterpret_cast<std::uintptr_t>(
            LoadLibraryExA(file.c_str(), nullptr, LOAD_LIBRARY_AS_IMAGE_RESOURCE));
        const auto* base = reinterpret_cast<const char*>(mapped & ~std::uintptr_t{3});
        ASSERT_NE(base, nullptr) << file;
        const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
        const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
        const IMAGE_OPTIONAL_HEADER& optional = headers->OptionalHeader;
        EXPECT_EQ(optional.MajorSubsystemVersion, 10);
        EXPECT_EQ(optional.MinorSubsystemVersion, 0);
        EXPECT_EQ(optional.DllCharacteristics,
                  IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE | IMAGE_DLLCHARACTERISTICS_NX_COMPAT |
                      (sizeof(void*) == 8 ? IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA : 0));
        EXPECT_TRUE(headers->FileHeader.Characteristics & IMAGE_FILE_NET_RUN_FROM_SWAP);
        for (const auto* import = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(
                 base + optional.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress);
             import->Name != 0; ++import)
            EXPECT_TRUE(known.contains(UpperCase(base + import->Name))) << base + import->Name;
    }
}

TEST(Images, SayWhatTheyAre) {
    const std::pair<const char*, const char*> descriptions[] = {
        {"ObrinMenu.exe", "Obrin system menu"},
        {"ObrinCheck.exe", "Obrin installation checker"},
        {"Corvel.dll", "Obrin support library"}};
    for (const auto& [name, description] : descriptions) {
        std::vector<char> version(GetFileVersionInfoSizeA(name, nullptr));
        GetFileVersionInfoA(name, 0, static_cast<DWORD>(version.size()), version.data());
        const auto text = [&](const std::string& field) {
            void* value = nullptr;
            UINT size = 0;
            VerQueryValueA(version.data(), ("\\StringFileInfo\\040904E4\\" + field).c_str(), &value, &size);
            return std::string(value == nullptr ? "" : static_cast<const char*>(value));
        };
        EXPECT_EQ(text("FileDescription") + "|" + text("OriginalFilename") + "|" + text("ProductName") + "|" +
                      text("FileVersion") + "|" + text("ProductVersion"),
                  std::string(description) + "|" + name +
                      "|Obrin Core System|" OBRIN_PROJECT_VERSION "|" OBRIN_PROJECT_VERSION);
    }
}

TEST(Picture, IsScaledWithTheScreen) {
    const test::ScratchFolder folder;
    const std::string bmp = test::Bmp(4, 1);
    WriteFileBytes("p.bmp", bmp);
    const SIZE scaled = PictureSize(ScalePicture(LoadPicture("p.bmp").get(), 192).get());
    EXPECT_EQ(scaled.cx, 8);
    EXPECT_EQ(scaled.cy, 2);
    for (const std::string& bad : {std::string(), bmp.substr(0, 20), std::string(100, '\0')}) {
        WriteFileBytes("p.bmp", bad);
        EXPECT_THROW(LoadPicture("p.bmp"), RunTimeError);
    }
}

TEST(GroupBox, PaintsWhatIsBehindAThemedButtonInIt) {
    const HWND box = CreateWindowExA(0, WC_BUTTONA, "Caption", WS_POPUP | BS_GROUPBOX, 0, 0, 200, 100,
                                     nullptr, nullptr, nullptr, nullptr);
    HoldControls(box);
    constexpr int width = 90, height = 30;
    const HWND button = CreateWindowExA(0, WC_BUTTONA, "Run", WS_CHILD | WS_VISIBLE, 20, 40, width, height,
                                        box, nullptr, nullptr, nullptr);
    const HDC screen = GetDC(nullptr);
    const UniqueDc memory(CreateCompatibleDC(screen));
    const UniqueBitmap bitmap(CreateCompatibleBitmap(screen, width, height));
    ReleaseDC(nullptr, screen);
    const HGDIOBJ old = SelectObject(memory.get(), bitmap.get());
    constexpr COLORREF untouched = RGB(255, 0, 255);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            SetPixel(memory.get(), x, y, untouched);
    }
    DrawThemeParentBackground(button, memory.get(), nullptr);
    int left = 0;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            left += GetPixel(memory.get(), x, y) == untouched ? 1 : 0;
    }
    SelectObject(memory.get(), old);
    DestroyWindow(box);
    EXPECT_EQ(left, 0);
}

} // namespace obrin
