// Reads the text of a window.
#pragma once

#include "platform/WindowsApi.h"

#include <string>

namespace obrin {

/// Returns the text of a window or control.
std::string WindowText(HWND window);

} // namespace obrin
