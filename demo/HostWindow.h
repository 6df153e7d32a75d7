// The host's main window. It shows the typed lines, and its caption says that the station has started.
#pragma once

#include "Behaviour.h"
#include "CommandWindow.h"
#include "Log.h"

#include <windows.h>

#include <deque>
#include <string>

namespace fenn {

class HostWindow final : private CommandListener {
public:
    HostWindow(const Behaviour& hostBehaviour, Log& hostLog, int hostStation);
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

    /// Creates and shows the window; closing it ends the program. Returns false if it cannot be created.
    bool Open(HINSTANCE programInstance);

private:
    struct Start {
        std::string program;
        std::string system;
    };

    static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    void CreateChildren();
    void LayOut();
    void ShowProgramWindow();

    void LineTyped(const std::string& line) override;
    void ProgramStarted(const std::string& program, const std::string& system) override;
    void ExitCommanded() override;
    void ClearPressed() override;

    const Behaviour& behaviour;
    Log& log;
    int station;
    CommandWindow command;
    HINSTANCE instance = nullptr;
    HWND window = nullptr;
    HWND commandHandle = nullptr;
    HWND lines = nullptr;
    std::deque<Start> pendingStarts;
};

} // namespace fenn
