// The host's command window: receives the keys, assembles lines and shows the one being typed.
#pragma once

#include "Behaviour.h"
#include "Interpreter.h"
#include "Log.h"

#include <windows.h>

#include <string>

namespace fenn {

/// What the command window reports to the window around it. Called while the key's sender waits, so nothing
/// here may take long or show a window.
class CommandListener {
public:
    virtual void LineTyped(const std::string& line) = 0;
    virtual void ProgramStarted(const std::string& program, const std::string& system) = 0;
    virtual void ExitCommanded() = 0;
    virtual void ClearPressed() = 0;

protected:
    ~CommandListener() = default;
};

class CommandWindow {
public:
    CommandWindow(const Behaviour& hostBehaviour, Log& hostLog, CommandListener& hostListener,
                  int hostStation);
    CommandWindow(const CommandWindow&) = delete;
    CommandWindow& operator=(const CommandWindow&) = delete;

    /// Makes the window as a child of `parent`; it lives as long as its parent.
    HWND Create(HWND parent, HINSTANCE instance);

    /// Height it wants.
    static int Height();

private:
    static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    void LogKey(const char* event, WPARAM key, LPARAM second);
    void KeyDown(WPARAM key);
    void KeyUp(WPARAM key);
    void CompleteLine();
    void LayOut();
    void Paint();

    const Behaviour& behaviour;
    Log& log;
    CommandListener& listener;
    int station;
    Interpreter interpreter;
    HWND window = nullptr;
    HWND clearButton = nullptr;
    std::string typed;
    bool leaving = false;
};

/// A line with its control characters made visible, for the log and the screen.
std::string EscapeControlCharacters(const std::string& line);

} // namespace fenn
