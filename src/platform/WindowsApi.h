// The only place that includes <windows.h>: the A calls; the build defines the Windows version.
#pragma once

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>
#include <uxtheme.h>
#include <windowsx.h>

namespace obrin {

/// The running program, whose resources and window classes are meant.
inline HINSTANCE Instance() {
    return GetModuleHandleA(nullptr);
}

} // namespace obrin
