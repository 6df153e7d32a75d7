// The host's own window: its caption tells that the station has started; it shows the lines typed into it.
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

    /// False if Windows made no window. Closing the window posts the quit message.
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
    void ShowStarted();

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
    std::deque<Start> starts; ///< programs that still have to show their window
};

} // namespace fenn
