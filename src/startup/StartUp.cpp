#include "startup/StartUp.h"

#include "platform/File.h"
#include "platform/Folder.h"
#include "platform/WindowsApi.h"
#include "platform/Workstation.h"
#include "startup/HostConfiguration.h"
#include "startup/HostLink.h"

namespace obrin {

namespace {

void RewriteHostConfiguration() {
    constexpr const char* configuration = "FennConfig.Sys";
    constexpr const char* temporary = "Core\\TempOut.tmp";
    const std::string blanked = BlankDriveLines(ReadFileBytes(configuration), UpperCase);
    WriteFileBytes(temporary, blanked);
    // Not read back from the temporary file: a workstation that starts at the same instant empties it. And
    // the configuration keeps its old lines until the new ones are safely on disk.
    ReplaceFileBytes(configuration, WithDriveLine(ShortPath(CurrentFolder()), blanked));
}

// The host may be open under any caption: its class alone counts.
bool EndBesideOpenHost() {
    if (FindWindowA(hostWindowClass, nullptr) == nullptr)
        return false;
    constexpr UINT style = MB_YESNO | MB_ICONSTOP | MB_DEFBUTTON2;
    if (MessageBoxA(nullptr,
                    "Error: Fenn Already Open!! Please close before proceeding.\r\n\r\n"
                    "Would you like us to show the Fenn Window Now?",
                    "Error Opening Obrin System", style) == IDYES) {
        const HWND host = FindWindowA(hostWindowClass, nullptr);
        ShowWindow(host, SW_SHOWNORMAL);
        SetForegroundWindow(host);
        SetActiveWindow(host);
    }
    return true;
}

bool EndAfterShowingOtherMenu() {
    const HWND menu = FindWindowA(nullptr, menuCaption);
    if (menu == nullptr)
        return false;
    ShowWindow(menu, SW_SHOWNORMAL);
    SetForegroundWindow(menu);
    return true;
}

} // namespace

void Main(const std::function<void()>& showMenu) {
    if (!FileExists("FennConfig.sys")) {
        MessageBoxA(nullptr, "Config File Not found!", "Error!", MB_OK);
        return;
    }
    // Before the test for an open host: the drive line is right from now on, whatever the test says.
    RewriteHostConfiguration();
    if (!EndBesideOpenHost() && !EndAfterShowingOtherMenu())
        showMenu();
}

} // namespace obrin
