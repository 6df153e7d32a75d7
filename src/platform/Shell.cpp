#include "platform/Shell.h"

namespace obrin {

DWORD Open(HWND owner, const char* file, const char* parameters) {
    SetLastError(0);
    const auto result =
        reinterpret_cast<INT_PTR>(ShellExecuteA(owner, "open", file, parameters, nullptr, SW_SHOWNORMAL));
    constexpr INT_PTR lastRefusal = 32;
    if (result > lastRefusal)
        return 0;
    const DWORD error = GetLastError();
    if (error != 0)
        return error;
    // The small ones, such as of a missing file, are the platform's own codes.
    return result != 0 ? static_cast<DWORD>(result) : ERROR_NOT_ENOUGH_MEMORY;
}

void OpenIgnoringErrors(HWND owner, const char* file) {
    Open(owner, file);
}

} // namespace obrin
