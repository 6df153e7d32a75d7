#include "maintenance/SystemInformation.h"

#include "controls/Dialog.h"
#include "controls/WindowText.h"
#include "platform/FileReplacement.h"
#include "support/Machine.h"
#include "support/ModalTest.h"

namespace obrin {
namespace {

constexpr const char* reportVariable = "OBRIN_TEST_TOOL_REPORT";

// The tool that is started is this program once more: it reports its name and its window's state, and ends
// before any test runs.
const bool startedAsTool = [] {
    const std::string report = EnvironmentVariable(reportVariable);
    if (report.empty())
        return false;
    STARTUPINFOA window;
    GetStartupInfoA(&window);
    const bool normal = (window.dwFlags & STARTF_USESHOWWINDOW) != 0 && window.wShowWindow == SW_SHOWNORMAL;
    ReplaceFileBytes(report, GetCommandLineA() + std::string(normal ? " normal" : " otherwise"));
    ExitProcess(0);
}();

class SystemInfo : public test::ModalTest {
protected:
    /// What the launch comes to: the started program's report, or the message.
    std::string Launch() {
        const std::string report = (folder.path / "report.txt").string();
        SetEnvironmentVariableA(reportVariable, report.c_str());
        std::string result;
        While([this] { LaunchSystemInfo(owner); },
              [&](HWND box) {
                  result = WindowText(box) + ": " + WindowText(GetDlgItem(box, 0xFFFF));
                  EndDialog(box, IDOK);
              });
        for (int i = 0; i < 1000 && result.empty(); ++i, Sleep(10))
            result = FileExists(report) ? ReadFileBytes(report) : "";
        DeleteFileA(report.c_str());
        return result;
    }

    const test::ScratchFolder folder;
    const test::LocalMachine machine;
};

TEST_F(SystemInfo, StartsWhatThePathNamesAndOnlyWithoutAPathTheToolInItsFolder) {
    const std::string here = folder.path.string() + "\\";
    const std::string unavailable = "ObrinMenu: System Information Is Unavailable At This Time";
    CopyFileA(test::OwnProgram().string().c_str(), "Tool One.exe", FALSE);
    CopyFileA(test::OwnProgram().string().c_str(), "Tool.exe",
              FALSE); // not meant, whatever the blank suggests
    CreateDirectoryA("Tools", nullptr);
    CopyFileA(test::OwnProgram().string().c_str(), "Tools\\MSINFO32.EXE", FALSE);
    CreateDirectoryA("MSINFO32.EXE", nullptr);
    const std::string longer(1025, 'x'); // than is read: as if it were missing
    struct {
        std::string path, folder, started;
        DWORD pathType = REG_SZ;
    } const cases[] = {
        {longer, longer, ""},
        {here + "Tool One.exe", here + "Tools", "Tool One.exe"},
        {here + "gone.exe", here + "Tools", ""},
        {"", here + "Tools", ""},
        {std::string(1022, 'x'), here + "Tools", ""},
        {here + "Tool One.exe", here + "Tools", "", REG_EXPAND_SZ},
        {longer, here + "Tools", "Tools\\MSINFO32.EXE"},
        {longer, here + "nowhere", ""},
        {longer, here + ".", ""}, // a folder of the tool's name
    };
    EXPECT_EQ(Launch(), unavailable) << "no entry at all";
    for (const auto& [path, toolFolder, started, type] : cases) {
        machine.Set("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH", type, path);
        machine.Set("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO", REG_SZ, toolFolder);
        std::string seen = Launch();
        if (seen == unavailable)
            seen = Launch(); // Wine fails to start one now and then on a loaded machine
        EXPECT_EQ(seen, started.empty() ? unavailable : '"' + here + started + "\" normal")
            << path.substr(0, 100) << (FileExists(here + started) ? " is there" : " is missing");
    }
}

} // namespace
} // namespace obrin
