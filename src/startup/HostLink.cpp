#include "startup/HostLink.h"

#include "platform/Events.h"
#include "platform/Shell.h"
#include "platform/Workstation.h"
#include "startup/HostKeys.h"

namespace obrin {

void HostLink::StartHost(HWND menu, std::int16_t wsid) {
    OpenUnexamined(menu, "Fenn.exe", HostStartArguments(wsid).c_str());

    // Any window of the host will do here, one of another instance too; the caption below is this one's.
    // The children of this first window tell nothing that is needed, so they are not looked up.
    if (!WaitUntil(menu, [] { return FindWindowA(hostWindowClass, nullptr) != nullptr; }))
        return;

    const std::string caption = StationCaption(wsid);
    HWND station = nullptr;
    if (!WaitUntil(menu, [&] { return (station = FindWindowA(nullptr, caption.c_str())) != nullptr; }))
        return;
    ShowWindow(station, SW_HIDE);
    hostCommandWindow = FindWindowExA(station, nullptr, nullptr, nullptr);
}

void HostLink::SendHostCommand(std::string command) {
    for (const WPARAM code : HostKeyCodes(std::move(command), UpperCase, CodePageLeadByteTest())) {
        pending.push_back({WM_KEYDOWN, code});
        pending.push_back({WM_KEYUP, code});
    }
    // While the host handles a key, what is sent to our windows directly is processed in here, such as the
    // end of the Windows session, whose exit command must not land in the middle of a line: the inner call
    // sends the rest of the outer one's keys first.
    while (!pending.empty()) {
        const auto [message, code] = pending.front();
        pending.pop_front();
        SendMessageA(hostCommandWindow, message, code, 0);
    }
}

} // namespace obrin
