// A stock group box that is the parent of the controls in it.
#pragma once

#include "platform/WindowsApi.h"

namespace obrin {

/// Turns a group box into a container: it paints its own background, also for a control in it that asks for
/// one, and forwards their notifications to its parent.
void MakeContainer(HWND groupBox);

} // namespace obrin
