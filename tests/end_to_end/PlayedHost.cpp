#include "end_to_end/PlayedHost.h"

#include "platform/Events.h"

#include <utility>

namespace obrin::test {

namespace {

constexpr const char* stationClass = "ZafWindow";
constexpr const char* commandClass = "ObrinTest.Command";

} // namespace

PlayedHost::PlayedHost() {
    SetEnvironmentVariableA("FENN_NEVER", "window");
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.hInstance = Instance();
    windowClass.lpfnWndProc = DefWindowProcA;
    windowClass.lpszClassName = stationClass;
    RegisterClassExA(&windowClass);
    windowClass.lpfnWndProc = CommandProcedure;
    windowClass.lpszClassName = commandClass;
    RegisterClassExA(&windowClass);
}

PlayedHost::~PlayedHost() {
    DestroyWindow(station);
    UnregisterClassA(stationClass, Instance());
    UnregisterClassA(commandClass, Instance());
}

void PlayedHost::MakeStation() {
    station = CreateWindowExA(0, stationClass, "Obrin-05", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, nullptr,
                              nullptr, Instance(), nullptr);
}

void PlayedHost::MakeCommandWindow() {
    const HWND command =
        CreateWindowExA(0, commandClass, "", WS_CHILD, 0, 0, 0, 0, station, nullptr, Instance(), nullptr);
    SetWindowLongPtrA(command, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

bool PlayedHost::Until(const std::function<bool()>& condition, DWORD milliseconds) {
    for (const ULONGLONG start = GetTickCount64(); !condition();) {
        if (GetTickCount64() - start > milliseconds)
            return false;
        ProcessPendingEvents();
        Sleep(5);
    }
    return true;
}

LRESULT CALLBACK PlayedHost::CommandProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* host = reinterpret_cast<PlayedHost*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (host == nullptr || message != WM_KEYDOWN)
        return DefWindowProcA(window, message, wParam, lParam);
    const char key = static_cast<char>(wParam);
    if (const auto act = std::exchange(host->onNextKey, {}))
        act();
    host->typed += key;
    return 0;
}

} // namespace obrin::test
