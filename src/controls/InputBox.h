// A dialog that asks for one line of text.
#pragma once

#include "platform/WindowsApi.h"

#include <string>

namespace obrin {

/// Shows the dialog modally and returns the answer; empty if the user cancels. Throws RunTimeError.
std::string InputBox(HWND owner, const std::string& prompt, const char* title);

} // namespace obrin
