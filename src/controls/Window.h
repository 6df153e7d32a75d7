// Helpers for windows that are not made from a dialog template.
#pragma once

#include "platform/WindowsApi.h"

#include <vector>

namespace obrin {

/// A visible control without a size. Throws RunTimeError.
HWND CreateControl(HWND parent, const char* controlClass, int id, DWORD style, const char* text = "",
                   DWORD extendedStyle = 0);

/// Subclasses a stock control and returns its own procedure, for CallWindowProcW: the control stays the
/// Unicode window that it is. SetWindowSubclass costs a tree of thousands of nodes several times as long.
WNDPROC ReplaceWindowProcedure(HWND control, WNDPROC procedure);

/// Lets a button of a dialog take no notice of the repeated keys of Enter held down.
void IgnoreHeldEnter(HWND button);

/// Sizes a window, in pixels with its frame, and centres it on its screen. A screen without room makes it
/// smaller.
void CentreOnScreen(HWND window, SIZE outer);

/// All descendants of a window.
std::vector<HWND> ListDescendants(HWND window);

} // namespace obrin
