// Finds the system-information tool of Windows in the registry and starts it.
#pragma once

#include "platform/WindowsApi.h"

#include <string>

namespace obrin {

/// Reads a registry value as text. Opens the key with full access, which a standard user does not have under
/// HKEY_LOCAL_MACHINE. On failure returns false and sets `value` to an empty text.
bool QueryRegistryString(HKEY root, const char* keyName, const char* valueName, std::string& value);

/// Starts the tool. Shows a message if there is none or it cannot be started.
void LaunchSystemInfo(HWND owner);

} // namespace obrin
