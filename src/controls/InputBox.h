// A box with a question and one line to answer in.
#pragma once

#include "platform/WindowsApi.h"

#include <string>

namespace obrin {

/// Shows the box modally and returns the answer, or an empty text when it was cancelled or closed. Throws
/// RunTimeError.
std::string InputBox(HWND owner, const std::string& prompt, const char* title);

} // namespace obrin
