// A stock group box that holds its controls instead of standing behind them.
#pragma once

#include "platform/WindowsApi.h"

namespace obrin {

/// Lets a group box paint what is between the controls in it, also for those that ask it for their
/// background, and hand on to its parent what they say.
void HoldControls(HWND groupBox);

} // namespace obrin
