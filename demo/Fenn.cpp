// A stand-in for the host application, for demonstrations and tests. The menu starts it as "Fenn.exe run
// core\start -5". It opens its window, sets the caption Obrin-05 a moment later, and reads commands typed
// into the first child of the window.
#include "Behaviour.h"
#include "HostWindow.h"
#include "Log.h"
#include "ProgramWindow.h"

#include <windows.h>

#include <charconv>
#include <string_view>

namespace {

/// Returns the number after the last "-", or 1 if there is none.
int StationNumber(std::string_view arguments) {
    int station = 1;
    if (const std::size_t dash = arguments.rfind('-'); dash != std::string_view::npos)
        std::from_chars(arguments.data() + dash + 1, arguments.data() + arguments.size(), station);
    return station;
}

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE /*previous*/, LPSTR arguments, int /*show*/) {
    const auto behaviour = fenn::Behaviour::FromEnvironment();
    fenn::Log log(behaviour.logFile);
    log.Write("start", arguments);
    log.Write("process", std::to_string(GetCurrentProcessId()));

    fenn::HostWindow host(behaviour, log, StationNumber(arguments));
    if (!behaviour.neverShowsWindow) {
        Sleep(behaviour.windowDelay);
        if (!host.Open(instance))
            return 1;
    }

    MSG message{};
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (fenn::HandleProgramWindowMessage(message))
            continue;
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    log.Write("exit");
    return 0;
}
