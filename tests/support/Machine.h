// Starts programs, and tells what this user may do on the machine.
#pragma once

#include "platform/Handle.h"
#include "platform/Workstation.h"

#include <filesystem>
#include <stdexcept>

namespace obrin::test {

/// The path of the running test program. The programs under test lie beside it.
inline std::filesystem::path OwnProgram() {
    return OwnFile();
}

struct StartedProgram {
    UniqueHandle process, thread;
    DWORD id;
};

/// Starts a program. Its standard output goes to `output` and its standard error to `errors`, if given.
/// Throws when the program does not start.
inline StartedProgram Start(const std::filesystem::path& program, const std::string& arguments = "",
                            HANDLE output = nullptr, HANDLE errors = nullptr) {
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    const bool redirected = output != nullptr || errors != nullptr;
    startup.dwFlags = redirected ? STARTF_USESTDHANDLES : 0U;
    startup.hStdOutput = output;
    startup.hStdError = errors;
    PROCESS_INFORMATION process{};
    std::string line = '"' + program.string() + "\" " + arguments;
    // On a loaded machine, Wine sometimes fails to start a program.
    for (int tries = 1; !CreateProcessA(nullptr, line.data(), nullptr, nullptr, redirected, CREATE_NO_WINDOW,
                                        nullptr, nullptr, &startup, &process);
         ++tries) {
        if (tries == 3)
            throw std::runtime_error(line + " does not start: error " + std::to_string(GetLastError()));
    }
    return {UniqueHandle(process.hProcess), UniqueHandle(process.hThread), process.dwProcessId};
}

/// Whether this user may write the menu's key in HKEY_LOCAL_MACHINE. On Windows only administrators may.
inline bool MayRememberSystem() {
    HKEY key = nullptr;
    const bool may = RegCreateKeyExA(HKEY_LOCAL_MACHINE, "Software\\Obrin", 0, nullptr, 0, KEY_SET_VALUE,
                                     nullptr, &key, nullptr) == ERROR_SUCCESS;
    RegCloseKey(key);
    return may;
}

} // namespace obrin::test
