// Updates the executables of a workstation once.
#pragma once

#include "platform/WindowsApi.h"

namespace obrin {

/// Shows the update window if "Updated.txt" does not contain the workstation, and then adds the workstation
/// there. Adds nothing if `owner`, the menu window, has been closed. Throws RunTimeError.
void CheckWorkstationUpdate(HWND owner, int wsid);

} // namespace obrin
