// A window that represents a running business program.
#pragma once

#include <windows.h>

#include <string>

namespace fenn {

/// Opens a window in front of all others. Its class is "FennProgram" and its caption is the path of the
/// program. It has no owner, so that it does not depend on the host's window, which is hidden.
void OpenProgramWindow(HINSTANCE instance, const std::string& program, const std::string& system,
                       int station);

/// Passes a message for a program window to the dialog manager, by which Enter and Esc close the window.
/// Returns true if the message has been handled.
bool HandleProgramWindowMessage(MSG& message);

} // namespace fenn
