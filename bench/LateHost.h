// The messages that a measurement sends to the late host (LateHost.cpp).
#pragma once

namespace obrin::bench {

/// The result of each message is a time in ticks of the performance counter, or 0 before that time.
constexpr unsigned askCaptionTime = 0x8000;            ///< WM_APP; asks when the host set its caption
constexpr unsigned askHidingTime = askCaptionTime + 1; ///< asks when the menu then hid the host's window

} // namespace obrin::bench
