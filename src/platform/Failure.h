// Turns failed calls of Windows into exceptions, and ends the program when nobody expected the failure.
#pragma once

#include "common/RunTimeError.h"
#include "platform/WindowsApi.h"

#include <string>

namespace obrin {

/// The title of message boxes that have no title of their own.
constexpr const char* applicationTitle = "ObrinMenu";

/// Returns the text of Windows for an error code. Some texts have a place for a name: `subject` fills it.
std::string PlatformText(DWORD code, const std::string& subject = "The file");

/// Throws RunTimeError with the last error of Windows. `action` says what failed, like "Opening UB.mnu".
[[noreturn]] void ThrowLastError(const std::string& action);

/// Shows the caught error and the current folder, then ends the program at once with exit code 1: sends no
/// exit command to the host and does not store the last system. Call it only in a catch block.
[[noreturn]] void EndProgramWithCurrentError() noexcept;

/// Returns whether the program is ending with an error. Its message box still processes events, and those
/// must not start the normal close.
bool IsEndingWithError();

/// Runs the body of WinMain or of a window, dialog or subclass procedure. An exception ends the program with
/// its error, because no exception may pass through the code of Windows that called the procedure.
template <class Body>
auto RunOrEndProgram(Body&& body) noexcept {
    try {
        return body();
    } catch (...) {
        EndProgramWithCurrentError();
    }
}

} // namespace obrin
