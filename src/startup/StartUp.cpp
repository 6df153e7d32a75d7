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

// Retries for 0.1 s, because the file is missing for a moment while another workstation replaces it.
std::optional<std::string> ReadHostConfiguration() {
    constexpr int maxTries = 5;
    constexpr DWORD pause = 25; // milliseconds
    for (int tries = 1;; ++tries) {
        std::optional<std::string> current = ReadFileIfThere(hostConfigurationFile);
        if (current || tries == maxTries)
            return current;
        Sleep(pause);
    }
}

void RewriteHostConfiguration(std::string current) {
    const std::string blanked = BlankDriveLines(current, UpperCase);
    WriteFileBytes(temporaryConfigurationFile, blanked);
    // Does not read the temporary file back, because another workstation may truncate it at this moment.
    ReplaceFileBytes(hostConfigurationFile, AddDriveLine(ShortPath(CurrentFolder()), blanked),
                     std::move(current));
}

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
    ShowWindowAsync(host, SW_SHOWNORMAL); // does not wait, because the host may hang
    SetForegroundWindow(host);
    SetActiveWindow(host);
}

void ShowOtherMenu(HWND menu) {
    ShowWindowAsync(menu, SW_SHOWNORMAL); // does not wait, because the menu may hang
    SetForegroundWindow(menu);
}

BOOL CALLBACK FindFirstUsableWindow(HWND window, LPARAM result) {
    // A disabled window has a modal dialog in front of it.
    if (!IsWindowVisible(window) || !IsWindowEnabled(window))
        return TRUE;
    *reinterpret_cast<HWND*>(result) = window;
    return FALSE;
}

// While a menu loads, it can show a dialog: the question for the workstation number, the
// notice "Waiting for Fenn" or an error.
void ActivateLoadingMenu(HWND menu) {
    HWND dialog = nullptr;
    EnumThreadWindows(GetWindowThreadProcessId(menu, nullptr), FindFirstUsableWindow,
                      reinterpret_cast<LPARAM>(&dialog));
    if (dialog != nullptr)
        SetForegroundWindow(dialog);
}

} // namespace

void Main(const MenuWindow& menu) {
    std::optional<std::string> current = ReadHostConfiguration();
    if (!current) {
        MessageBoxA(nullptr, "Config File Not found!", "Error!", MB_OK);
        return;
    }
    // Comes before the test for an open host, because the drive line must be right even if one is open.
    RewriteHostConfiguration(std::move(*current));
    if (FindOpenHost() != nullptr)
        OfferToShowHost();
    else if (const HWND other = FindWindowA(nullptr, menu.caption))
        ShowOtherMenu(other);
    else if (const HWND loading = FindWindowA(menu.windowClass, nullptr))
        ActivateLoadingMenu(loading); // a second menu would type into the same host
    else
        menu.show();
}

} // namespace obrin
