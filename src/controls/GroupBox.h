// Lets a stock group box be the parent of other controls.
#pragma once

#include "platform/WindowsApi.h"

namespace obrin {

/// Turns a group box into a container: it paints its own background and forwards the notifications of its
/// controls to its parent.
void MakeContainer(HWND groupBox);

} // namespace obrin
