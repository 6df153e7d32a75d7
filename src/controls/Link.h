// Makes a stock label a link that also works with the keyboard and with screen readers.
#pragma once

#include "platform/WindowsApi.h"

namespace obrin {

/// Turns a label with SS_NOTIFY and WS_TABSTOP into a link: Enter and Space click it, it shows the focus, and
/// screen readers announce it as a link. A click notifies the parent with STN_CLICKED.
void MakeLink(HWND label);

/// Sets the colours of the link. The parent calls it for WM_CTLCOLORSTATIC and returns its result.
LRESULT UseLinkColours(HDC context);

} // namespace obrin
