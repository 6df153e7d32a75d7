#include "startup/StartUp.h"

#include "common/Installation.h"
#include "platform/File.h"
#include "platform/FileReplacement.h"
#include "platform/Folder.h"
#include "platform/WindowsApi.h"
#include "platform/Workstation.h"
#include "startup/HostConfiguration.h"
#include "startup/HostLink.h"

#include <optional>
#include <utility>

namespace obrin {

namespace {

void RewriteHostConfiguration(std::string current) {
    const std::string blanked = BlankDriveLines(current, UpperCase);
    WriteFileBytes(temporaryConfigurationFile, blanked);
    // Not read back from the temporary file: a workstation that starts at the same instant empties it. And
    // the configuration keeps its old lines until the new ones are safely on disk.
    ReplaceFileBytes(hostConfigurationFile, AddDriveLine(ShortPath(CurrentFolder()), blanked),
                     std::move(current));
}

// Under any caption: the class alone counts.
HWND FindOpenHost() {
    return FindWindowA(hostWindowClass, nullptr);
}

void OfferToShowHost() {
    constexpr UINT style = MB_YESNO | MB_ICONSTOP | MB_DEFBUTTON2;
    if (MessageBoxA(nullptr,
                    "Error: Fenn Already Open!! Please close before proceeding.\r\n\r\n"
                    "Would you like us to show the Fenn Window Now?",
                    "Error Opening Obrin System", style) != IDYES)
        return;
    const HWND host = FindOpenHost();
    ShowWindowAsync(host, SW_SHOWNORMAL); // not waited for: it may hang
    SetForegroundWindow(host);
    SetActiveWindow(host);
}

void ShowOtherMenu(HWND menu) {
    ShowWindowAsync(menu, SW_SHOWNORMAL); // not waited for: it may hang
    SetForegroundWindow(menu);
}

BOOL CALLBACK FindFirstUsableWindow(HWND window, LPARAM kept) {
    // What a box in front has disabled is not what waits for the operator.
    if (!IsWindowVisible(window) || !IsWindowEnabled(window))
        return TRUE;
    *reinterpret_cast<HWND*>(kept) = window;
    return FALSE;
}

// Of a menu that is still loading: the question for its number, that it waits for the host, an error. It may
// show nothing yet, and then nothing comes to the front.
void ActivateLoadingMenu(HWND menu) {
    HWND shown = nullptr;
    EnumThreadWindows(GetWindowThreadProcessId(menu, nullptr), FindFirstUsableWindow,
                      reinterpret_cast<LPARAM>(&shown));
    if (shown != nullptr)
        SetForegroundWindow(shown);
}

} // namespace

void Main(const MenuWindow& menu) {
    std::optional<std::string> current = ReadFileIfThere(hostConfigurationFile);
    if (!current) {
        MessageBoxA(nullptr, "Config File Not found!", "Error!", MB_OK);
        return;
    }
    // Before the test for an open host: the drive line is right from now on, whatever the test says.
    RewriteHostConfiguration(std::move(*current));
    if (FindOpenHost() != nullptr)
        OfferToShowHost();
    else if (const HWND other = FindWindowA(nullptr, menu.caption))
        ShowOtherMenu(other);
    else if (const HWND loading = FindWindowA(menu.windowClass, nullptr))
        ActivateLoadingMenu(loading); // a second one would type into the same host
    else
        menu.show();
}

} // namespace obrin
