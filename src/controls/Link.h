// A stock label that is a link for the keyboard and for screen readers too.
#pragma once

#include "platform/WindowsApi.h"

namespace obrin {

/// Makes a link of a label with SS_NOTIFY and WS_TABSTOP: Enter and Space click it, it shows that it has the
/// keyboard, and it is announced as a link. A click reaches the parent as STN_CLICKED, as it does anyway.
void MakeLink(HWND label);

/// The parent's answer to WM_CTLCOLORSTATIC for the label.
LRESULT UseLinkColours(HDC context);

} // namespace obrin
