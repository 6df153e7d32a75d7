// Environment variables that change how this stand-in for the host behaves. A test sets them, and the menu
// passes them on when it starts the host.
#pragma once

#include <string>

namespace fenn {

struct Behaviour {
    std::string logFile;            ///< FENN_LOG: path of the log; no log if not set
    unsigned windowDelay = 0;       ///< FENN_WINDOW_DELAY_MS: from the start to the host's window
    unsigned captionDelay = 300;    ///< FENN_CAPTION_DELAY_MS: from the host's window to its station caption
    bool neverShowsWindow = false;  ///< FENN_NEVER=window
    bool neverSetsCaption = false;  ///< FENN_NEVER=caption
    std::string hangLine;           ///< FENN_HANG: the host hangs when this line is typed
    unsigned hangDuration = 10'000; ///< FENN_HANG_MS: how long it hangs

    static Behaviour FromEnvironment();
};

} // namespace fenn
