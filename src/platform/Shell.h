// Starts programs and opens documents through the Windows shell.
#pragma once

#include "platform/WindowsApi.h"

namespace obrin {

/// Opens a program or document in a normal window. A relative path starts at the current directory. Returns
/// 0, or the Windows error code if the file is missing, a policy forbids it or the user cancels a prompt.
DWORD Open(HWND owner, const char* file, const char* parameters = nullptr);

/// Opens a program or document. Reports no error: the menu shows no message for a missing document.
void OpenIgnoringErrors(HWND owner, const char* file);

} // namespace obrin
