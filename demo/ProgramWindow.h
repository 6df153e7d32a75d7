// The window of a running business program: names it until the operator closes it.
#pragma once

#include <windows.h>

#include <string>

namespace fenn {

/// Opens the window in front of all others. It is of class "FennProgram" and its caption is the program's
/// path. It owns itself and is nobody's child, so it stays in sight while the host's window is hidden.
void OpenProgramWindow(HINSTANCE instance, const std::string& program, const std::string& system,
                       int station);

/// Gives a program window its dialog keys (Enter and Esc close it); true if the message was one of them.
bool IsProgramWindowKey(MSG& message);

} // namespace fenn
