// The operating system's system-information tool: where the registry says it is, and its start.
#pragma once

#include "platform/WindowsApi.h"

#include <string>

namespace obrin {

/// Reads a registry value as text. Returns false, with an empty text, when the key cannot be opened for full
/// access, as a standard user may not under HKEY_LOCAL_MACHINE, or when the value cannot be read.
bool QueryRegistryString(HKEY root, const char* keyName, const char* valueName, std::string& value);

/// Starts the tool, or tells the user that there is none.
void LaunchSystemInfo(HWND owner);

} // namespace obrin
