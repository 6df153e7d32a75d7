// Visual styles of Windows. UxTheme.dll is loaded from the system folder on first use: Windows would look for
// a linked DLL in the program's folder first, and every operator may write there.
#pragma once

#include "platform/WindowsApi.h"

namespace obrin {

/// Gives a dialog on a tab strip the background of the tab strip.
void UseTabBackground(HWND dialog);

} // namespace obrin
