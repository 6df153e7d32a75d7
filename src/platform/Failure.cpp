#include "platform/Failure.h"

#include <new>

namespace obrin {

namespace {

// The action names files relative to this folder. A workstation can have several installations.
std::string CurrentFolderLine() {
    char folder[1024];
    const DWORD length = GetCurrentDirectoryA(sizeof folder, folder);
    return length == 0 || length >= sizeof folder ? ""
                                                  : "\r\n\r\nCurrent folder: " + std::string(folder, length);
}

bool ending = false;

[[noreturn]] void End(DWORD code, const char* action) noexcept {
    ending = true;
    // Task-modal, because no other window of the menu may react while the program ends.
    MessageBoxA(nullptr, (PlatformText(code) + "\r\n\r\n" + action + CurrentFolderLine()).c_str(),
                applicationTitle, MB_OK | MB_ICONERROR | MB_TASKMODAL | MB_SETFOREGROUND);
    ExitProcess(1);
}

} // namespace

std::string PlatformText(DWORD code, const std::string& subject) {
    char text[512];
    const DWORD length = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                        code, 0, text, sizeof text, nullptr);
    std::string result(text, length);
    result.erase(result.find_last_not_of("\r\n ") + 1);
    constexpr std::string_view placeholder = "%1";
    if (const auto position = result.find(placeholder); position != std::string::npos)
        result.replace(position, placeholder.size(), subject);
    return result.empty() ? "Error " + std::to_string(code) : result;
}

void ThrowLastError(const std::string& action) {
    throw RunTimeError(GetLastError(), action);
}

bool IsEndingWithError() {
    return ending;
}

void EndProgramWithCurrentError() noexcept {
    try {
        throw;
    } catch (const RunTimeError& error) {
        End(error.Code(), error.what());
    } catch (const std::bad_alloc&) {
        End(ERROR_NOT_ENOUGH_MEMORY, "");
    } catch (const std::exception& error) {
        End(ERROR_INTERNAL_ERROR, error.what());
    }
}

} // namespace obrin
