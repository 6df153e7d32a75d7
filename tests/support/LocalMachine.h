// While a LocalMachine exists, HKEY_LOCAL_MACHINE of this process is an empty key of the current user. So the
// tests need no administrator rights and leave the real HKEY_LOCAL_MACHINE as it was.
#pragma once

#include "platform/WindowsApi.h"

#include <string>

namespace obrin::test {

class LocalMachine {
public:
    LocalMachine() {
        RegDeleteTreeA(HKEY_CURRENT_USER, name); // left by a run that was cut off
        RegCreateKeyA(HKEY_CURRENT_USER, name, &key);
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, key);
    }
    LocalMachine(const LocalMachine&) = delete;
    LocalMachine& operator=(const LocalMachine&) = delete;
    ~LocalMachine() {
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
        RegCloseKey(key);
        RegDeleteTreeA(HKEY_CURRENT_USER, name);
    }

    static void Set(const char* keyName, const char* valueName, DWORD type, const std::string& bytes) {
        RegSetKeyValueA(HKEY_LOCAL_MACHINE, keyName, valueName, type, bytes.data(),
                        static_cast<DWORD>(bytes.size()));
    }

private:
    static constexpr const char* name = "Software\\ObrinTestMachine";
    HKEY key = nullptr;
};

} // namespace obrin::test
