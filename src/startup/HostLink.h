// The link to the workstation's host instance: starting it, finding its windows, typing into it.
#pragma once

#include "platform/WindowsApi.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <string>

namespace obrin {

/// Every top-level window of the host has this class.
constexpr const char* hostWindowClass = "ZafWindow";

class HostLink {
public:
    explicit HostLink(HWND commandWindow = nullptr)
        : hostCommandWindow(commandWindow) {}

    /// Starts the host for this workstation, does `meanwhile`, waits for the host's windows without a time
    /// limit while the events of `menu` are processed, and hides it. A wait of more than a moment is told to
    /// the operator. The link stands when it returns, unless `menu` was closed meanwhile. Throws
    /// RunTimeError.
    void StartHost(HWND menu, std::int16_t wsid, const std::function<void()>& meanwhile);

    /// Types a command into the host's command window, key by key; each key has been handled by the host when
    /// the next is sent. Without a host the keys are lost, without a message.
    void SendHostCommand(std::string command);

private:
    struct Key {
        UINT message;
        WPARAM code;
    };

    HWND hostCommandWindow;
    std::deque<Key> pending; // key messages still to be sent
};

} // namespace obrin
