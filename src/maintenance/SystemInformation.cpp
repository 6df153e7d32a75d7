#include "maintenance/SystemInformation.h"

#include "maintenance/RegistryText.h"
#include "platform/Failure.h"
#include "platform/File.h"
#include "platform/Handle.h"

#include <array>

namespace obrin {

namespace {

// Starts a program in a normal window. The path may contain blanks. Windows searches no other folders.
bool StartProgram(const std::string& path) {
    STARTUPINFOA window{};
    window.cb = sizeof window;
    window.dwFlags = STARTF_USESHOWWINDOW;
    window.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION process;
    std::string commandLine = '"' + path + '"';
    if (!CreateProcessA(path.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &window, &process))
        return false;
    const UniqueHandle startedThread(process.hThread), startedProcess(process.hProcess);
    return true;
}

bool StartTool() try {
    std::string path;
    if (QueryRegistryString(HKEY_LOCAL_MACHINE, "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH", path))
        return StartProgram(path); // does not try the second key if this fails
    if (!QueryRegistryString(HKEY_LOCAL_MACHINE, "SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO",
                             path))
        return false;
    path += "\\MSINFO32.EXE";
    return FileExists(path) && StartProgram(path);
} catch (const RunTimeError&) {
    return false;
}

} // namespace

bool QueryRegistryString(HKEY root, const char* keyName, const char* valueName, std::string& value) {
    value.clear();
    constexpr REGSAM fullAccess = 0x2003F;
    HKEY key = nullptr;
    std::array<char, 1024> bytes;
    DWORD size = bytes.size();
    DWORD type = REG_NONE;
    const bool found = RegOpenKeyExA(root, keyName, 0, fullAccess, &key) == ERROR_SUCCESS &&
                       RegQueryValueExA(key, valueName, nullptr, &type, reinterpret_cast<BYTE*>(bytes.data()),
                                        &size) == ERROR_SUCCESS;
    RegCloseKey(key); // also after a failed open; errors do not matter
    if (found)
        value = RegistryText(type, {bytes.data(), size});
    return found;
}

void LaunchSystemInfo(HWND owner) {
    if (!StartTool())
        MessageBoxA(owner, "System Information Is Unavailable At This Time", applicationTitle, MB_OK);
}

} // namespace obrin
