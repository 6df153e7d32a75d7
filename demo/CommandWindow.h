// The host's command window: receives keys, joins them to lines and shows the current line.
#pragma once

#include "Behaviour.h"
#include "Interpreter.h"
#include "Log.h"

#include <windows.h>

#include <string>

namespace fenn {

/// These functions must not open a window: the sender of a key may still wait for the command window.
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

    /// Creates the window as a child of `parent`, which destroys it.
    HWND Create(HWND parent, HINSTANCE instance);

    /// Returns the height that the window needs, in pixels.
    static int Height();

private:
    static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    void LogKey(const char* event, WPARAM key, LPARAM lParam);
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
    bool isExiting = false;
};

/// Makes the control characters of a line visible, for the log and the screen.
std::string EscapeControlCharacters(const std::string& line);

} // namespace fenn
