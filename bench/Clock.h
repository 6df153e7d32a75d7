// Time, and medians of runs that alternate between the product and the bare calls: what disturbs the machine
// then hits both.
#pragma once

#include "platform/WindowsApi.h"

#include <functional>
#include <vector>

namespace obrin::bench {

/// Ticks of the performance counter, which all processes share.
LONGLONG Now();

double Milliseconds(LONGLONG ticks);

/// How long the work takes, in milliseconds.
double MeasureTime(const std::function<void()>& work);

double Median(std::vector<double> values);

struct Medians {
    double product, floor;
    double ratio; ///< of neighbouring runs: the machine's speed changes from moment to moment
};

/// Calls both alternately, `runs` times each after one call that does not count. Each returns what it
/// measured.
Medians MeasureAlternately(int runs, const std::function<double()>& product,
                           const std::function<double()>& floor);

} // namespace obrin::bench
