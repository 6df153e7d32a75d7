// The link to the workstation's host instance: starting it, finding its windows, typing into it.
#pragma once

#include "platform/WindowsApi.h"

#include <cstdint>
#include <string>

namespace obrin {

/// Every top-level window of the host has this class.
constexpr const char* hostWindowClass = "ZafWindow";

/// The menu window has this caption from the first shown system on; a second menu finds it by it.
constexpr const char* menuCaption = "Obrin System Menu";

/// Starts the host for this workstation, waits for its windows without a time limit while the events of
/// `menu` are processed, and hides it. Returns its command window, or 0 when `menu` was closed meanwhile.
HWND StartHost(HWND menu, std::int16_t wsid);

/// Types a command into the host's command window, key by key; each key has been handled by the host when the
/// next is sent. Without a host the keys are lost, without a message.
void SendHostCommand(HWND hostCommandWindow, std::string command);

} // namespace obrin
