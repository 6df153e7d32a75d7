// What the machine is like that the tests run on.
#pragma once

#include "platform/WindowsApi.h"

#include <filesystem>

namespace obrin::test {

/// The program of these tests; those that are tested lie beside it.
inline std::filesystem::path OwnProgram() {
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, sizeof path);
    return path;
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
