#include "Behaviour.h"

#include <windows.h>

#include <charconv>

namespace fenn {

namespace {

std::string Variable(const char* name) {
    const DWORD size = GetEnvironmentVariableA(name, nullptr, 0); // includes the final NUL
    if (size == 0)
        return {};
    std::string value(size, '\0');
    value.resize(GetEnvironmentVariableA(name, value.data(), size));
    return value;
}

/// Returns milliseconds; the default if the variable does not begin with a number.
unsigned Duration(const char* name, unsigned byDefault) {
    const std::string text = Variable(name);
    unsigned value = byDefault;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

} // namespace

Behaviour Behaviour::FromEnvironment() {
    Behaviour behaviour;
    behaviour.logFile = Variable("FENN_LOG");
    behaviour.windowDelay = Duration("FENN_WINDOW_DELAY_MS", behaviour.windowDelay);
    behaviour.captionDelay = Duration("FENN_CAPTION_DELAY_MS", behaviour.captionDelay);
    const std::string never = Variable("FENN_NEVER");
    behaviour.neverShowsWindow = never == "window";
    behaviour.neverSetsCaption = never == "caption";
    behaviour.hangLine = Variable("FENN_HANG");
    behaviour.hangDuration = Duration("FENN_HANG_MS", behaviour.hangDuration);
    return behaviour;
}

} // namespace fenn
