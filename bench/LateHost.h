// The messages that a measurement sends to the late host (LateHost.cpp).
#pragma once

namespace obrin::bench {

/// The result of each message is a time in ticks of the performance counter; 0 if it has not happened yet.
constexpr unsigned askCaptionTime = 0x8000;            ///< WM_APP: when the host set its caption
constexpr unsigned askHidingTime = askCaptionTime + 1; ///< when the menu hid the host after that

} // namespace obrin::bench
