// The only header of the product that includes <windows.h>. Use the A functions: all texts are in the ANSI
// code page.
#pragma once

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>
#include <uxtheme.h>
#include <windowsx.h>

namespace obrin {

/// Returns the module of the running program, which holds its resources and window classes.
inline HINSTANCE Instance() {
    return GetModuleHandleA(nullptr);
}

} // namespace obrin
