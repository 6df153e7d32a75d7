// The link to the workstation's host instance: starting it, finding its windows, typing into it.
#pragma once

#include "platform/WindowsApi.h"
#include "startup/HostNotice.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>

namespace obrin {

/// Every top-level window of the host has this class.
constexpr const char* hostWindowClass = "ZafWindow";

class HostLink {
public:
    explicit HostLink(HWND commandWindow = nullptr)
        : hostCommandWindow(commandWindow) {}

    /// Starts the host for this workstation, does `duringStart`, waits for the host's windows without a time
    /// limit while the events of the menu window are processed, and hides it. The link stands when it
    /// returns, unless the menu was closed duringStart. Throws RunTimeError.
    void StartHost(HWND menuWindow, std::int16_t wsid, const std::function<void()>& duringStart);

    /// Closes the notice that a wait of more than a moment has shown.
    void CloseNotice() { notice.reset(); }

    /// Types a command into the host's command window, key by key; each key has been handled by the host when
    /// the next is sent. Without a host the keys are lost, without a message.
    void SendHostCommand(std::string command);

private:
    struct Key {
        UINT message;
        WPARAM code;
    };

    bool ShowNoticeWhenDue();

    HWND menu = nullptr;
    HWND hostCommandWindow;
    std::optional<HostNotice> notice;
    std::deque<Key> pending; // key messages still to be sent
};

} // namespace obrin
