// Windows and controls made and placed by hand, as the ones of no dialog are.
#pragma once

#include "platform/WindowsApi.h"

#include <vector>

namespace obrin {

/// A visible control without a size. Throws RunTimeError.
HWND CreateControl(HWND parent, const char* controlClass, int id, DWORD style, const char* text = "",
                   DWORD extendedStyle = 0);

/// Puts a procedure in front of a stock control's own and returns that one, for CallWindowProcW: the control
/// stays the Unicode window that it is. For controls that get thousands of messages at once; the common
/// controls' way, SetWindowSubclass, looks its procedures up twice a message, which under Wine asks another
/// process.
WNDPROC PutBefore(HWND control, WNDPROC procedure);

/// Gives a window its size in pixels, frame included, or as much of it as fits, in the middle of the screen
/// that Windows chose for it.
void CentreOnScreen(HWND window, SIZE outer);

/// All windows within a window, also those within others of them. To go from each to the next takes longer.
std::vector<HWND> WindowsWithin(HWND window);

} // namespace obrin
