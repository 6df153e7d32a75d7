#include "startup/HostLink.h"

#include "common/Installation.h"
#include "platform/Events.h"
#include "platform/Shell.h"
#include "platform/Workstation.h"
#include "startup/HostKeys.h"

namespace obrin {

namespace {

HWND FirstChild(HWND station) {
    return station == nullptr ? nullptr : FindWindowExA(station, nullptr, nullptr, nullptr);
}

// Tells Windows why the end of the session has to wait. Its callers may be nested: the outermost one ends it.
class ShutdownBlock {
public:
    explicit ShutdownBlock(HWND aWindow)
        : window(aWindow) {
        ShutdownBlockReasonCreate(window, L"The menu is typing a command into Fenn.");
    }
    ShutdownBlock(const ShutdownBlock&) = delete;
    ShutdownBlock& operator=(const ShutdownBlock&) = delete;
    ~ShutdownBlock() { ShutdownBlockReasonDestroy(window); }

private:
    HWND window;
};

} // namespace

void HostLink::StartHost(HWND menuWindow, std::int16_t wsid, const std::function<void()>& duringStart) {
    menu = menuWindow;
    // Waited for all the same when the start is refused: somebody may start it by hand.
    const DWORD refusal = Open(menu, hostProgram, HostStartArguments(wsid).c_str());
    if (!IsWindow(menu))
        return; // closed while Windows asked whether the host may be started
    duringStart();
    const std::string caption = StationCaption(wsid);
    notice.emplace(menu, caption, refusal);
    // Any window of the host will do first, one of another instance too; the caption behind it is this one's.
    // The children of that first window tell nothing that is needed, so they are not looked up.
    if (!WaitUntil(menu,
                   [&] { return FindWindowA(hostWindowClass, nullptr) != nullptr || ShowNoticeWhenDue(); }))
        return;
    // Both: a station window may get its child a moment later.
    HWND station = nullptr;
    if (!WaitUntil(menu, [&] {
            station = FindWindowA(nullptr, caption.c_str());
            hostCommandWindow = FirstChild(station);
            return hostCommandWindow != nullptr || ShowNoticeWhenDue();
        }))
        return;
    // A station that is found before its first showing would stay on the screen.
    constexpr ULONGLONG patience = 2000; // milliseconds
    const ULONGLONG found = GetTickCount64();
    WaitUntil(menu, [&] { return IsWindowVisible(station) || GetTickCount64() - found >= patience; });
    ShowWindow(station, SW_HIDE);
}

// Tells the operator what is waited for. Returns false: the wait goes on.
bool HostLink::ShowNoticeWhenDue() {
    notice->ShowWhenDue();
    return false;
}

void HostLink::SendHostCommand(std::string command) {
    const ShutdownBlock block(menu);
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
