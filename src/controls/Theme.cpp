#include "controls/Theme.h"

#include "platform/Library.h"

namespace obrin {

void UseTabBackground(HWND dialog) {
    static const UniqueLibrary uxTheme = LoadLibraryFrom("UxTheme.dll", LOAD_LIBRARY_SEARCH_SYSTEM32);
    const auto enable = FindRoutine<decltype(&EnableThemeDialogTexture)>(uxTheme, "EnableThemeDialogTexture");
    if (enable != nullptr)
        enable(dialog, ETDT_ENABLETAB);
}

} // namespace obrin
