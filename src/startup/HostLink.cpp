#include "startup/HostLink.h"

#include "platform/Events.h"
#include "platform/Shell.h"
#include "platform/Workstation.h"
#include "startup/HostKeys.h"

namespace obrin {

HWND StartHost(HWND menu, std::int16_t wsid) {
    OpenUnexamined(menu, "Fenn.exe", HostStartArguments(wsid).c_str());

    // Any window of the host will do here, one of another instance too; the caption below is this one's.
    // The children of this first window tell nothing that is needed, so they are not looked up.
    if (!WaitUntil(menu, [] { return FindWindowA(hostWindowClass, nullptr) != nullptr; }))
        return nullptr;

    const std::string caption = StationCaption(wsid);
    HWND station = nullptr;
    if (!WaitUntil(menu, [&] { return (station = FindWindowA(nullptr, caption.c_str())) != nullptr; }))
        return nullptr;
    ShowWindow(station, SW_HIDE);
    return FindWindowExA(station, nullptr, nullptr, nullptr);
}

void SendHostCommand(HWND hostCommandWindow, std::string command) {
    // While a key is handled by the host, only events sent to our windows directly are processed here, such
    // as the end of the Windows session: its exit command then goes out between two keys, and nothing follows
    // that could matter.
    for (const WPARAM key : HostKeyCodes(std::move(command), UpperCase)) {
        SendMessageA(hostCommandWindow, WM_KEYDOWN, key, 0);
        SendMessageA(hostCommandWindow, WM_KEYUP, key, 0);
    }
}

} // namespace obrin
