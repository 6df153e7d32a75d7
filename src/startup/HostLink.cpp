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

// Tells Windows why the end of the session must wait. The exit command can be typed during another command.
// It then removes the reason for both, but has also sent the keys of both.
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

void HostLink::StartHost(HWND menuWindow, std::int16_t wsid,
                         const std::function<void()>& workWhileHostStarts) {
    menu = menuWindow;
    // After a failed start the menu waits too: the operator may start the host by hand.
    const DWORD startError = Open(menu, hostProgram, HostStartArguments(wsid).c_str());
    if (!IsWindow(menu))
        return; // closed while Windows asked whether it may start the host
    workWhileHostStarts();
    const std::string caption = StationCaption(wsid);
    notice.emplace(menu, caption, startError);
    // The first wait accepts a window of any host, the second one only the window of this workstation.
    if (!WaitWithNotice([] { return FindWindowA(hostWindowClass, nullptr) != nullptr; }))
        return;
    // The station window may get its first child a moment later.
    HWND station = nullptr;
    if (!WaitWithNotice([&] {
            station = FindWindowA(nullptr, caption.c_str());
            return FirstChild(station) != nullptr;
        }))
        return;
    // Waits until the host shows the window: a window that is hidden earlier would appear after all.
    constexpr ULONGLONG timeLimit = 2000; // milliseconds
    const ULONGLONG start = GetTickCount64();
    WaitUntil(menu, [&] { return IsWindowVisible(station) || GetTickCount64() - start >= timeLimit; });
    // Waits if the host is busy. With ShowWindowAsync the window would still be visible during a command.
    ShowWindow(station, SW_HIDE);
    hostCommandWindow = FirstChild(station); // after the wait: the host may have put another child in front
}

bool HostLink::WaitWithNotice(const std::function<bool()>& condition) {
    return WaitUntil(menu, [&] {
        if (condition())
            return true;
        notice->ShowWhenDue();
        return false;
    });
}

void HostLink::SendHostCommand(std::string command) {
    const ShutdownBlock block(menu);
    // Lets the host bring the windows of its programs to the front. Windows allows that only with the
    // permission of the program that the operator is using.
    DWORD host = 0;
    if (GetWindowThreadProcessId(hostCommandWindow, &host) != 0)
        AllowSetForegroundWindow(host);
    for (const WPARAM code : HostKeyCodes(std::move(command), UpperCase, CodePageLeadByteTest())) {
        pendingKeys.push_back({WM_KEYDOWN, code});
        pendingKeys.push_back({WM_KEYUP, code});
    }
    // SendMessage can call this function again: while the host handles a key, Windows may tell our window
    // that the session ends, and the menu sends the exit command. The inner call first sends the remaining
    // keys of the outer call, so that the two commands do not mix.
    while (!pendingKeys.empty()) {
        const auto [message, code] = pendingKeys.front();
        pendingKeys.pop_front();
        SendMessageA(hostCommandWindow, message, code, 0);
    }
}

} // namespace obrin
