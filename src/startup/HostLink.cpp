#include "startup/HostLink.h"

#include "common/Installation.h"
#include "platform/Events.h"
#include "platform/Shell.h"
#include "platform/Workstation.h"
#include "startup/HostKeys.h"
#include "startup/HostNotice.h"

namespace obrin {

void HostLink::StartHost(HWND menu, std::int16_t wsid, const std::function<void()>& meanwhile) {
    // Waited for all the same when the start is refused: somebody may start it by hand.
    const DWORD refusal = Open(menu, hostProgram, HostStartArguments(wsid).c_str());
    if (!IsWindow(menu))
        return; // closed while Windows asked whether the host may be started
    meanwhile();
    const std::string caption = StationCaption(wsid);
    HostNotice notice(menu, caption, refusal);
    const auto waitFor = [&](const auto& lookUp) {
        HWND found = nullptr;
        WaitUntil(menu, [&] {
            found = lookUp();
            if (found == nullptr)
                notice.ShowWhenDue();
            return found != nullptr;
        });
        return found;
    };
    // Any window of the host will do first, one of another instance too; the caption behind it is this one's.
    // The children of that first window tell nothing that is needed, so they are not looked up.
    if (waitFor([] { return FindWindowA(hostWindowClass, nullptr); }) == nullptr)
        return;
    int tries = 0;
    const HWND station = waitFor([&] {
        // A window of any class will do, but to ask all windows of the machine for their captions costs most
        // of the wait: mostly only the host's are asked.
        constexpr int often = 64;
        return FindWindowA(tries++ % often == 0 ? nullptr : hostWindowClass, caption.c_str());
    });
    if (station == nullptr)
        return;
    ShowWindow(station, SW_HIDE);
    hostCommandWindow = FindWindowExA(station, nullptr, nullptr, nullptr);
}

void HostLink::SendHostCommand(std::string command) {
    // The programs that it starts come to the front; Windows lets only those that the operator's own program
    // names.
    DWORD host = 0;
    if (GetWindowThreadProcessId(hostCommandWindow, &host) != 0)
        AllowSetForegroundWindow(host);
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
