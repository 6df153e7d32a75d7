// What the machine is like that the tests run on.
#pragma once

#include "platform/WindowsApi.h"

namespace obrin::test {

/// Not Windows itself.
inline bool OnWine() {
    return GetProcAddress(GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr;
}

/// Whether this user may write the launcher's key of the machine; on Windows administrators only.
inline bool MayRememberSystem() {
    HKEY key = nullptr;
    const bool may = RegCreateKeyExA(HKEY_LOCAL_MACHINE, "Software\\Obrin", 0, nullptr, 0, KEY_SET_VALUE,
                                     nullptr, &key, nullptr) == ERROR_SUCCESS;
    RegCloseKey(key);
    return may;
}

} // namespace obrin::test
