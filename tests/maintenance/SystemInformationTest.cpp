#include "maintenance/SystemInformation.h"

#include "controls/WindowTest.h"
#include "platform/FileReplacement.h"
#include "support/Machine.h"

namespace obrin {
namespace {

constexpr const char* reportVariable = "OBRIN_TEST_TOOL_REPORT";

// The tests start a copy of this program as the tool. The copy writes its command line and the state of its
// window into a report, and ends before any test runs.
const bool startedAsTool = [] {
    const std::string report = EnvironmentVariable(reportVariable);
    if (report.empty())
        return false;
    STARTUPINFOA window;
    GetStartupInfoA(&window);
    const bool isNormal = (window.dwFlags & STARTF_USESHOWWINDOW) != 0 && window.wShowWindow == SW_SHOWNORMAL;
    ReplaceFileBytes(report, GetCommandLineA() + std::string(isNormal ? " in a normal window" : ""));
    ExitProcess(0);
}();

class SystemInformation : public test::WindowTest {
protected:
    SystemInformation() {
        SetEnvironmentVariableA(reportVariable, report.c_str());
        CreateFolder("Tools");
        CopyFileA(test::OwnProgram().string().c_str(), "Tool One.exe", FALSE);
        CopyFileA("Tool One.exe", "Tool.exe", FALSE); // an unquoted path would start this one
        CopyFileA("Tool One.exe", "Tools\\MSINFO32.EXE", FALSE);
    }
    ~SystemInformation() override { SetEnvironmentVariableA(reportVariable, nullptr); }

    /// Sets the two registry entries and launches the tool. Returns its report, or the text of the message.
    std::string Launch(const std::string& path, const std::string& toolFolder,
                       DWORD pathType = REG_SZ) const {
        machine.Set("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH", pathType, path);
        machine.Set("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO", REG_SZ, toolFolder);
        std::string result;
        const auto launch = [this] { LaunchSystemInfo(owner); };
        const auto read = [&](HWND box) { result = WindowText(GetDlgItem(box, 0xFFFF)); };
        if (!ActInDialog(owner, launch, read)) {
            for (int i = 0; i < 1000 && !FileExists(report); ++i)
                Sleep(10);
            result = ReadFileBytes(report);
            DeleteFileA(report.c_str());
        }
        return result;
    }

    /// Tries twice, because Wine sometimes fails to start a program on a loaded machine.
    std::string LaunchTool(const std::string& path) const {
        const std::string result = Launch(path, here + "Tools");
        return result == unavailable ? Launch(path, here + "Tools") : result;
    }

    const std::string here = folder.path.string() + "\\", report = here + "report.txt";
    const std::string missing = std::string(1025, 'x'); // too long: the menu ignores it
    const std::string unavailable = "System Information Is Unavailable At This Time";
};

TEST_F(SystemInformation, StartsTheToolAtThePath) {
    EXPECT_EQ(LaunchTool(here + "Tool One.exe"), '"' + here + "Tool One.exe\" in a normal window");
}

TEST_F(SystemInformation, FallsBackToTheToolInItsFolder) {
    EXPECT_EQ(LaunchTool(missing), '"' + here + "Tools\\MSINFO32.EXE\" in a normal window");
}

TEST_F(SystemInformation, IsUnavailableWhenNothingCanBeStarted) {
    CreateFolder("MSINFO32.EXE"); // a folder instead of the tool
    struct {
        const char* reason;
        std::string path, toolFolder;
        DWORD pathType = REG_SZ;
    } const cases[] = {
        {"the path leads nowhere, and the folder is not tried", here + "gone.exe", here + "Tools"},
        {"the path is empty", "", here + "Tools"},
        {"the path has another registry type", here + "Tool One.exe", here + "Tools", REG_EXPAND_SZ},
        {"there is neither path nor folder", missing, missing},
        {"the folder holds a folder of that name", missing, here + "."},
    };
    for (const auto& [reason, path, toolFolder, pathType] : cases)
        EXPECT_EQ(Launch(path, toolFolder, pathType), unavailable) << reason;
}

} // namespace
} // namespace obrin
