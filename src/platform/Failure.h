// Failed calls as exceptions, and the boundary at which they end the program.
#pragma once

#include "common/RunTimeError.h"
#include "platform/WindowsApi.h"

#include <string>

namespace obrin {

/// The title of message boxes that have none of their own.
constexpr const char* applicationTitle = "ObrinMenu";

/// The platform's sentence for an error code. Some have a gap for the name of what they are about.
std::string PlatformText(DWORD code, const std::string& subject = "The file");

/// Throws the calling thread's last error with what was being done.
[[noreturn]] void ThrowLastError(const std::string& action);

/// Shows the platform's text for the error that is being handled, what failed and the folder that relative
/// paths stand in, then ends the program with exit code 1, at once: no exit command for the host, no
/// remembered system. Only for catch blocks.
[[noreturn]] void EndProgramWithCurrentError() noexcept;

/// Whether that is happening: its box lets events through, which must not start the orderly close.
bool IsEndingWithError();

/// Runs the body of a window, dialog or subclass procedure: no exception may cross the platform's callback.
template <class Body>
auto RunOrEndProgram(Body&& body) noexcept {
    try {
        return body();
    } catch (...) {
        EndProgramWithCurrentError();
    }
}

} // namespace obrin
