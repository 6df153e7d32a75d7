// What a measurement asks the late host (LateHost.cpp).
#pragma once

namespace obrin::bench {

/// Messages to its window. The answer is a time in ticks of the performance counter, 0 before it.
constexpr unsigned askCaptionTime = 0x8000; ///< when it set its caption; the first message of a program's own
constexpr unsigned askHidingTime = askCaptionTime + 1; ///< when it was hidden after that

} // namespace obrin::bench
