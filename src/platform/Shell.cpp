#include "platform/Shell.h"

namespace obrin {

void OpenUnexamined(HWND owner, const char* file, const char* parameters) {
    ShellExecuteA(owner, "open", file, parameters, nullptr, SW_SHOWNORMAL);
}

} // namespace obrin
