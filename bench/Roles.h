// The other processes of a measurement, played by this same program.
#pragma once

#include <optional>
#include <span>

namespace obrin::bench {

/// First argument of the key sink: a process with one window that takes keys and does nothing with them.
constexpr const char* keySinkRole = "sink";
constexpr const char* keySinkCaption = "Obrin bench key sink";

/// The late host is this program under the host's name, started as the host is. Its window gets the station's
/// caption at a moment that nobody can foresee, and answers this message with the microseconds from there to
/// its being hidden.
constexpr unsigned askHidingDelay = 0x8000; // the first message of a program's own

/// Runs the role that the arguments name and returns its exit code; nothing when they name none.
std::optional<int> PlayRole(std::span<char*> arguments);

} // namespace obrin::bench
