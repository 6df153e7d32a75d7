// The other processes of a measurement, played by this same program.
#pragma once

#include <optional>
#include <span>

namespace obrin::bench {

/// First argument of the key sink: a process with one window that takes keys and does nothing with them.
constexpr const char* keySinkRole = "sink";
constexpr const char* keySinkCaption = "Obrin bench key sink";

/// The late host is this program under the host's name, started as the host is. Its window gets the station's
/// caption at a moment that nobody can foresee, and answers these messages with the ticks of that moment and
/// of its being hidden; 0 until then.
constexpr unsigned askCaptionTime = 0x8000; // the first message of a program's own
constexpr unsigned askHidingTime = askCaptionTime + 1;

/// Runs the role that the arguments name and returns its exit code; nothing when they name none.
std::optional<int> PlayRole(std::span<char*> arguments);

} // namespace obrin::bench
