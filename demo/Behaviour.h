// How this stand-in behaves, from the environment it is started in: a test sets the variables for itself,
// the menu hands them down.
#pragma once

#include <string>

namespace fenn {

struct Behaviour {
    std::string logFile;            ///< FENN_LOG: where the log goes; none without it
    unsigned windowDelay = 0;       ///< FENN_WINDOW_DELAY_MS: from the start to the host's window
    unsigned startDelay = 300;      ///< FENN_START_DELAY_MS: from the host's window to the station's caption
    bool neverShowsWindow = false;  ///< FENN_NEVER=window
    bool neverSetsCaption = false;  ///< FENN_NEVER=caption
    std::string hangLine;           ///< FENN_HANG: the completed line that makes it stop answering ...
    unsigned hangDuration = 10'000; ///< FENN_HANG_MS: ... and for how long

    static Behaviour FromEnvironment();
};

} // namespace fenn
