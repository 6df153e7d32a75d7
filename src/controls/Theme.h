// What the menu takes from the platform's visual styles. Their library is loaded from the system's folder
// when first needed: one that the program names as its own would be taken from the folder of the program,
// into which every operator may write.
#pragma once

#include "platform/WindowsApi.h"

#include <functional>

namespace obrin {

/// Calls `paint` with a buffer of the area, which then reaches the screen at once; without visual styles with
/// the screen itself.
void PaintBuffered(HDC screen, const RECT& area, const std::function<void(HDC)>& paint);

/// Gives a dialog and its controls the background of the tab strip that it lies upon.
void UseTabBackground(HWND dialog);

} // namespace obrin
