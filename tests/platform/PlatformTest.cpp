#include "controls/GroupBox.h"
#include "platform/SupportLibrary.h"
#include "support/LocalMachine.h"
#include "support/Machine.h"

#include <gtest/gtest.h>

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
        HKEY opened = nullptr;
        DWORD size = 0, type = 0;
        RegOpenKeyExA(HKEY_LOCAL_MACHINE, key, 0, KEY_READ, &opened);
        RegQueryValueExA(opened, "Text", nullptr, &type, nullptr, &size);
        EXPECT_EQ(corvel.GetRegValue(opened, "", "Text"), text) << "below any key";
        RegCloseKey(opened);
        EXPECT_EQ(type, DWORD{REG_SZ});
        EXPECT_EQ(size, text.size() + 1) << "stored with its NUL";
    }
    const auto set = reinterpret_cast<LONG(__stdcall*)(HKEY, const char*, const char*, const char*)>(
        GetProcAddress(GetModuleHandleA("Corvel.dll"), "SetRegValue"));
    const auto get = reinterpret_cast<BSTR(__stdcall*)(HKEY, const char*, const char*)>(
        GetProcAddress(GetModuleHandleA("Corvel.dll"), "GetRegValue"));
    EXPECT_NE(UniqueString(get(HKEY_LOCAL_MACHINE, key, "Missing")), nullptr) << "but empty";
    EXPECT_NE(set(nullptr, key, "Text", ""), 0) << "the suite's programs are told";
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

TEST(Images, AreForWindows10TakeNothingFromTheirOwnFolderAndSayWhatTheyAre) {
    // Loaded by Windows from the system's folder, whatever lies in the program's; the last one by the
    // manifest.
    const std::set<std::string> known{"ADVAPI32.DLL", "GDI32.DLL",    "KERNEL32.DLL", "MSVCRT.DLL",
                                      "OLE32.DLL",    "OLEAUT32.DLL", "SHELL32.DLL",  "SHLWAPI.DLL",
                                      "USER32.DLL",   "COMCTL32.DLL"};
    const std::pair<const char*, const char*> images[] = {{"ObrinMenu.exe", "Obrin system menu"},
                                                          {"ObrinCheck.exe", "Obrin installation checker"},
                                                          {"Corvel.dll", "Obrin support library"}};
    for (const auto& [name, description] : images) {
        const std::string file = test::OwnProgram().replace_filename(name).string();
        const bool isProgram = file.ends_with(".exe");
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
                      (sizeof(void*) == 8 ? IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA : 0) |
                      (isProgram ? IMAGE_DLLCHARACTERISTICS_TERMINAL_SERVER_AWARE : 0));
        EXPECT_TRUE(headers->FileHeader.Characteristics & IMAGE_FILE_NET_RUN_FROM_SWAP);
        for (const auto* import = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(
                 base + optional.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress);
             import->Name != 0; ++import)
            EXPECT_TRUE(known.contains(UpperCase(base + import->Name))) << base + import->Name;

        std::vector<char> version(GetFileVersionInfoSizeA(file.c_str(), nullptr));
        GetFileVersionInfoA(file.c_str(), 0, static_cast<DWORD>(version.size()), version.data());
        VS_FIXEDFILEINFO* numbers = nullptr;
        UINT length = 0;
        VerQueryValueA(version.data(), "\\", reinterpret_cast<void**>(&numbers), &length);
        EXPECT_EQ(std::to_string(HIWORD(numbers->dwFileVersionMS)) + "." +
                      std::to_string(LOWORD(numbers->dwFileVersionMS)) + "." +
                      std::to_string(numbers->dwFileVersionLS),
                  OBRIN_PROJECT_VERSION);
        DWORD* block = nullptr;
        VerQueryValueA(version.data(), "\\VarFileInfo\\Translation", reinterpret_cast<void**>(&block),
                       &length);
        EXPECT_EQ(*block, 0x04E40409U) << "where the texts are";
        std::string texts;
        for (const std::string field : {"InternalName", "CompanyName", "FileDescription", "OriginalFilename",
                                        "ProductName", "FileVersion", "ProductVersion"}) {
            void* value = nullptr;
            UINT size = 0;
            VerQueryValueA(version.data(), ("\\StringFileInfo\\040904E4\\" + field).c_str(), &value, &size);
            texts.append(static_cast<const char*>(value), size).back() = '|';
        }
        EXPECT_EQ(texts, std::string(name).substr(0, std::string(name).find('.')) +
                             "|Obrin Software Systems|" + description + "|" + name +
                             "|Obrin Core System|" OBRIN_PROJECT_VERSION "|" OBRIN_PROJECT_VERSION "|");
    }
}

TEST(GroupBox, PaintsWhatIsBehindAThemedButtonInIt) {
    const HWND box = CreateWindowExA(0, WC_BUTTONA, "Caption", WS_POPUP | BS_GROUPBOX, 0, 0, 200, 100,
                                     nullptr, nullptr, nullptr, nullptr);
    MakeContainer(box);
    constexpr int width = 90, height = 30;
    const HWND button = CreateWindowExA(0, WC_BUTTONA, "Run", WS_CHILD | WS_VISIBLE, 20, 40, width, height,
                                        box, nullptr, nullptr, nullptr);
    const HDC screen = GetDC(nullptr);
    const UniqueDc memory(CreateCompatibleDC(screen));
    const UniqueBitmap bitmap(CreateCompatibleBitmap(screen, width, height));
    ReleaseDC(nullptr, screen);
    const HGDIOBJ old = SelectObject(memory.get(), bitmap.get());
    PatBlt(memory.get(), 0, 0, width, height, BLACKNESS);
    DrawThemeParentBackground(button, memory.get(), nullptr);
    for (int pixel = 0; pixel < width * height; ++pixel)
        EXPECT_NE(GetPixel(memory.get(), pixel % width, pixel / width), RGB(0, 0, 0)) << pixel;
    SelectObject(memory.get(), old);
    ShowWindow(box, SW_SHOWNOACTIVATE);
    UpdateWindow(box);
    const HDC shown = GetDC(box);
    EXPECT_EQ(GetPixel(shown, 100, 90), GetSysColor(COLOR_BTNFACE));
    EXPECT_NE(GetPixel(shown, 0, 50), GetSysColor(COLOR_BTNFACE)) << "its border";
    ReleaseDC(box, shown);
    DestroyWindow(box);
}

} // namespace obrin
