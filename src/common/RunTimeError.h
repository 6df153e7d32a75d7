// The one exception of the program: something that had to succeed failed, and the program ends with it.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <utility>

namespace obrin {

/// The platform's codes for failures that the rules find themselves, without a failed call.
enum class PlatformError : std::uint32_t {
    InvalidData = 13,
    ArithmeticOverflow = 534,
    InvalidIndex = 1413,
};

/// Carries the platform's error code and what was being done to which file. It is shown and ends the
/// program at the boundary of every window procedure; nothing in between catches it.
class RunTimeError : public std::exception {
public:
    RunTimeError(std::uint32_t platformCode, std::string action)
        : code(platformCode)
        , doing(std::move(action)) {}
    RunTimeError(PlatformError error, std::string action)
        : RunTimeError(static_cast<std::uint32_t>(error), std::move(action)) {}

    std::uint32_t Code() const { return code; }
    const char* what() const noexcept override { return doing.c_str(); }

private:
    std::uint32_t code;
    std::string doing;
};

} // namespace obrin
