// Takes the place of the shell's "open" in a test program: the menus of the tests start no host, which would
// stay behind and hold the output of the test.

#include "platform/WindowsApi.h"

static HINSTANCE WINAPI RefuseToOpen(HWND, LPCSTR, LPCSTR, LPCSTR, LPCSTR, INT) {
    constexpr INT_PTR fileNotFound = 2;
    SetLastError(ERROR_FILE_NOT_FOUND);
    return reinterpret_cast<HINSTANCE>(fileNotFound);
}

// The pointer through which the program calls the imported function.
extern "C" {
#ifdef _WIN64
decltype(&ShellExecuteA) importedShellExecute __asm__("__imp_ShellExecuteA") = RefuseToOpen;
#else
decltype(&ShellExecuteA) importedShellExecute __asm__("__imp__ShellExecuteA@24") = RefuseToOpen;
#endif
}
