// The only file that includes <windows.h>. The program calls the A functions.
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
