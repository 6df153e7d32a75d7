// The one exception of the program: an action that must succeed has failed.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <utility>

namespace obrin {

/// Windows error codes for failures that our own code detects.
enum class PlatformError : std::uint32_t {
    InvalidData = 13,
    ArithmeticOverflow = 534,
    InvalidIndex = 1413,
};

/// Holds the Windows error code and the action that failed, for example "Opening UB.mnu". If
/// nobody handles it earlier, RunOrEndProgram shows it and ends the program.
class RunTimeError : public std::exception {
public:
    RunTimeError(std::uint32_t platformCode, std::string action)
        : code(platformCode)
        , failedAction(std::move(action)) {}
    RunTimeError(PlatformError error, std::string action)
        : RunTimeError(static_cast<std::uint32_t>(error), std::move(action)) {}

    std::uint32_t Code() const { return code; }
    const char* what() const noexcept override { return failedAction.c_str(); }

private:
    std::uint32_t code;
    std::string failedAction;
};

} // namespace obrin
