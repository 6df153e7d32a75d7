// What a screen reader is told of a link.
#pragma once

#include "platform/WindowsApi.h"

namespace obrin {

/// The answer to WM_GETOBJECT for a label that is a link: the platform's own account of it with the role, the
/// states and the action of a link. 0, which leaves it to the platform, when it cannot be made.
LRESULT AnswerAsLink(HWND label, WPARAM flags, LONG object);

} // namespace obrin
