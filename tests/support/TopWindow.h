// Finding a top-level window. By EnumWindows: a walk with FindWindowExA from window to window never ends
// under Wine 10 when one of them is being destroyed.
#pragma once

#include "platform/WindowsApi.h"

#include <functional>

namespace obrin::test {

/// The first top-level window that is wanted, hidden ones included; null without one.
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
