// Finds a top-level window with EnumWindows. Under Wine 10, FindWindowExA never returns when the window that
// it starts from is being destroyed.
#pragma once

#include "platform/WindowsApi.h"

#include <functional>

namespace obrin::test {

/// The first top-level window that `isWanted` accepts, also a hidden one. Null if there is none.
inline HWND FindTopWindow(const std::function<bool(HWND)>& isWanted) {
    struct Search {
        const std::function<bool(HWND)>& isWanted;
        HWND found;
    } search{isWanted, nullptr};
    struct Callback {
        static BOOL CALLBACK Look(HWND window, LPARAM parameter) {
            auto& search = *reinterpret_cast<Search*>(parameter);
            if (!search.isWanted(window))
                return TRUE;
            search.found = window;
            return FALSE;
        }
    };
    EnumWindows(Callback::Look, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

} // namespace obrin::test
