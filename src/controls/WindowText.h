// The text of a window as a string.
#pragma once

#include "platform/WindowsApi.h"

#include <string>

namespace obrin {

/// The text of a window or control.
std::string WindowText(HWND window);

} // namespace obrin
