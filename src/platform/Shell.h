// The shell's "open".
#pragma once

#include "platform/WindowsApi.h"

namespace obrin {

/// Opens a program or document, relative to the current directory, normally shown. Returns 0, or the
/// platform's error code when the start was refused: by a missing file, by a rule, by the operator at a
/// prompt.
DWORD Open(HWND owner, const char* file, const char* parameters = nullptr);

/// The same when nobody asks whether it could be opened: of a missing document the menu says nothing.
void OpenIgnoringErrors(HWND owner, const char* file);

} // namespace obrin
