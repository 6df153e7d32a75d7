// Measures times and compares the menu with bare calls of Windows.
#pragma once

#include "platform/WindowsApi.h"

#include <functional>
#include <vector>

namespace obrin::bench {

/// Returns the ticks of the performance counter, which are the same in all processes.
LONGLONG Now();

double Milliseconds(LONGLONG ticks);

/// Returns how long the work takes, in milliseconds.
double MeasureTime(const std::function<void()>& work);

double Median(std::vector<double> values);

struct Medians {
    double menu, bare;
    double ratio; ///< median of the ratios menu / bare, one for each pair of runs
};

/// Calls both measurements alternately, so that other work of the machine disturbs both alike. Each returns a
/// time or a size. Makes `runs` pairs of calls after one pair that does not count.
Medians MeasureAlternately(int runs, const std::function<double()>& menu,
                           const std::function<double()>& bare);

} // namespace obrin::bench
