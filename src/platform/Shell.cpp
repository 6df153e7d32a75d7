#include "platform/Shell.h"

namespace obrin {

DWORD Open(HWND owner, const char* file, const char* parameters) {
    SetLastError(0);
    const auto result =
        reinterpret_cast<INT_PTR>(ShellExecuteA(owner, "open", file, parameters, nullptr, SW_SHOWNORMAL));
    constexpr INT_PTR largestErrorResult = 32;
    if (result > largestErrorResult)
        return 0;
    const DWORD error = GetLastError();
    if (error != 0)
        return error;
    // Results up to 32, such as 2 for a missing file, are Windows error codes. 0 means out of memory.
    return result != 0 ? static_cast<DWORD>(result) : ERROR_NOT_ENOUGH_MEMORY;
}

void OpenIgnoringErrors(HWND owner, const char* file) {
    Open(owner, file);
}

} // namespace obrin
