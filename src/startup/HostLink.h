// Starts the workstation's host, finds its windows and types commands into it.
#pragma once

#include "platform/WindowsApi.h"
#include "startup/HostNotice.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>

namespace obrin {

/// The class of every top-level window of the host.
constexpr const char* hostWindowClass = "ZafWindow";

class HostLink {
public:
    /// Types into `commandWindow` until StartHost finds the window of its host.
    explicit HostLink(HWND commandWindow = nullptr)
        : hostCommandWindow(commandWindow) {}

    /// Starts the host, calls `workWhileHostStarts`, waits without a time limit for the host's window and
    /// hides it. Processes events while it waits. Returns early if the menu window is closed. Throws
    /// RunTimeError.
    void StartHost(HWND menuWindow, std::int16_t wsid, const std::function<void()>& workWhileHostStarts);

    /// Closes the notice that StartHost shows during a long wait.
    void CloseNotice() { notice.reset(); }

    /// Types a command into the host's command window, key by key, and waits until the host has handled each
    /// key. Does nothing if the host has ended.
    void SendHostCommand(std::string command);

private:
    struct Key {
        UINT message;
        WPARAM code;
    };

    bool WaitWithNotice(const std::function<bool()>& condition);

    HWND menu = nullptr;
    HWND hostCommandWindow;
    std::optional<HostNotice> notice;
    std::deque<Key> pendingKeys;
};

} // namespace obrin
