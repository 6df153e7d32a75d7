// Helpers for windows and controls.
#pragma once

#include "platform/WindowsApi.h"

#include <vector>

namespace obrin {

/// Creates a visible control of size 0. Throws RunTimeError.
HWND CreateControl(HWND parent, const char* controlClass, int id, DWORD style, const char* text = "",
                   DWORD extendedStyle = 0);

/// Makes a dialog button ignore the repeated key messages while Enter is held down.
void IgnoreHeldEnter(HWND button);

/// Centres a window on its screen and resizes it. `outer` is in pixels and includes the frame. The window
/// becomes smaller if the screen has too little room.
void CentreOnScreen(HWND window, SIZE outer);

/// Returns all descendants of a window.
std::vector<HWND> ListDescendants(HWND window);

} // namespace obrin
