#include "maintenance/SystemInformation.h"

#include "maintenance/LocalMachine.h"
#include "maintenance/ModalAction.h"
#include "platform/Dialog.h"
#include "platform/File.h"
#include "platform/ScratchFolder.h"
#include "platform/Workstation.h"

#include <gtest/gtest.h>

#include <array>

namespace obrin {
namespace {

constexpr const char* reportVariable = "OBRIN_TEST_TOOL_REPORT";
constexpr const char* pathKey = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
constexpr const char* folderKey = "SOFTWARE\\Microsoft\\Shared Tools Location";

std::string OwnProgram() {
    std::array<char, MAX_PATH> path{};
    GetModuleFileNameA(nullptr, path.data(), path.size());
    return path.data();
}

// The tool that is started is this program once more: it reports its name and its window's state, and ends
// before any test runs.
const bool startedAsTool = [] {
    const std::string report = EnvironmentVariable(reportVariable);
    if (report.empty())
        return false;
    STARTUPINFOA window;
    GetStartupInfoA(&window);
    const bool normal = (window.dwFlags & STARTF_USESHOWWINDOW) != 0 && window.wShowWindow == SW_SHOWNORMAL;
    ReplaceFileBytes(report, OwnProgram() + (normal ? " normal" : " otherwise"));
    ExitProcess(0);
}();

class SystemInfo : public testing::Test {
protected:
    SystemInfo()
        : owner(CreateWindowExA(0, "STATIC", "", WS_OVERLAPPEDWINDOW, 0, 0, 700, 500, nullptr, nullptr,
                                nullptr, nullptr)) {
        SetEnvironmentVariableA(reportVariable, report.c_str());
        CopyFileA(OwnProgram().c_str(), "Tool One.exe", FALSE);
        CopyFileA(OwnProgram().c_str(), "Tool.exe", FALSE); // not meant, whatever the blank suggests
        CreateDirectoryA("Tools", nullptr);
        CopyFileA(OwnProgram().c_str(), "Tools\\MSINFO32.EXE", FALSE);
        WriteFileBytes("notes.txt", "no program");
    }
    ~SystemInfo() override {
        SetEnvironmentVariableA(reportVariable, nullptr);
        DestroyWindow(owner);
    }

    /// What the launch comes to: the started program's report, or the message.
    std::string Launch() {
        std::string message;
        const test::ModalAction modal(owner, [&](HWND box) {
            message = WindowText(box) + ": " + WindowText(GetDlgItem(box, 0xFFFF));
            EXPECT_EQ(GetDlgItem(box, IDCANCEL), nullptr);
            EndDialog(box, IDOK);
        });
        LaunchSystemInfo(owner);
        if (!message.empty())
            return message;
        for (int i = 0; i < 1000 && !FileExists(report); ++i)
            Sleep(10);
        const std::string reported = ReadFileBytes(report);
        DeleteFileA(report.c_str());
        return reported;
    }

    static void SetPath(const std::string& path) { test::LocalMachine::Set(pathKey, "PATH", REG_SZ, path); }
    static void SetFolder(const std::string& path) {
        test::LocalMachine::Set(folderKey, "MSINFO", REG_SZ, path);
    }

    const test::ScratchFolder folder;
    const test::LocalMachine machine;
    const std::string report = (folder.path / "report.txt").string();
    const std::string here = folder.path.string() + "\\";
    const std::string unavailable = "ObrinMenu: System Information Is Unavailable At This Time";
    HWND owner;
};

TEST_F(SystemInfo, IsUnavailableWithoutAnyEntry) {
    EXPECT_EQ(Launch(), unavailable);
}

TEST_F(SystemInfo, StartsWhatThePathNames) {
    SetFolder(here + "Tools");
    SetPath(here + "Tool One.exe");
    EXPECT_EQ(Launch(), here + "Tool One.exe normal");
}

TEST_F(SystemInfo, DoesNotLookFurtherThanAPathThatFails) {
    SetFolder(here + "Tools");
    for (const std::string& path :
         {here + "gone.exe", here + "Tools", here + "notes.txt", std::string(), std::string(1000, 'x')}) {
        SetPath(path);
        EXPECT_EQ(Launch(), unavailable) << path;
    }
    test::LocalMachine::Set(pathKey, "PATH", REG_EXPAND_SZ, here + "Tool One.exe");
    EXPECT_EQ(Launch(), unavailable) << "no string";
}

TEST_F(SystemInfo, StartsTheToolInItsFolderOtherwise) {
    SetFolder(here + "Tools");
    EXPECT_EQ(Launch(), here + "Tools\\MSINFO32.EXE normal");
    SetPath(std::string(2000, 'x')); // longer than is read: as if it were missing
    EXPECT_EQ(Launch(), here + "Tools\\MSINFO32.EXE normal");
    DeleteFileA("Tools\\MSINFO32.EXE");
    CreateDirectoryA("Tools\\MSINFO32.EXE", nullptr);
    EXPECT_EQ(Launch(), unavailable);
    SetFolder(here + "nowhere");
    EXPECT_EQ(Launch(), unavailable);
}

TEST(RegistryString, IsReadOrEmpty) {
    const test::LocalMachine machine;
    const auto query = [](const char* key, const char* valueName) {
        std::string value = "before";
        const bool read = QueryRegistryString(HKEY_LOCAL_MACHINE, key, valueName, value);
        return (read ? "yes " : "no ") + value;
    };
    machine.Set("Key", "Text", REG_SZ, std::string("abc\0", 4));
    machine.Set("Key", "Longest", REG_SZ, std::string(1023, 'x') + '\0');
    machine.Set("Key", "TooLong", REG_SZ, std::string(1024, 'x') + '\0');
    machine.Set("Key", "Number", REG_DWORD, std::string("\5\1\0\0", 4));
    machine.Set("Key", "Bytes", REG_BINARY, "abc");
    EXPECT_EQ(query("Key", "Text"), "yes abc");
    EXPECT_EQ(query("Key", "Longest"), "yes " + std::string(1023, 'x'));
    EXPECT_EQ(query("Key", "TooLong"), "no ");
    EXPECT_EQ(query("Key", "Number"), "yes 21");
    EXPECT_EQ(query("Key", "Bytes"), "yes ");
    EXPECT_EQ(query("Key", "Gone"), "no ");
    EXPECT_EQ(query("Gone", "Text"), "no ");
}

TEST(RegistryString, ClosesItsKey) {
    const test::LocalMachine machine;
    machine.Set("Key", "Text", REG_SZ, "abc");
    // Handles that stay open make the number of the next one grow.
    const auto nextHandle = [] {
        HKEY key = nullptr;
        RegOpenKeyA(HKEY_LOCAL_MACHINE, "Key", &key);
        RegCloseKey(key);
        return reinterpret_cast<std::uintptr_t>(key);
    };
    const auto before = nextHandle();
    for (int i = 0; i < 1000; ++i) {
        std::string value;
        QueryRegistryString(HKEY_LOCAL_MACHINE, "Key", i % 2 == 0 ? "Text" : "Gone", value);
    }
    EXPECT_LT(nextHandle(), before + 500);
}

} // namespace
} // namespace obrin
