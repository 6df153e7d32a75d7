// The shell's "open".
#pragma once

#include "platform/WindowsApi.h"

namespace obrin {

/// Opens a program or document, relative to the current directory, normally shown. Whether it could be opened
/// is not examined: of a missing document the menu says nothing.
void OpenUnexamined(HWND owner, const char* file, const char* parameters = nullptr);

} // namespace obrin
