// Time, and medians of runs that alternate between the product and the bare calls: whatever disturbs the
// machine meanwhile hits both.
#pragma once

#include "platform/WindowsApi.h"

#include <vector>

namespace obrin::bench {

/// Ticks of the clock that all processes share.
LONGLONG Now();

double Seconds(LONGLONG ticks);

double Median(std::vector<double> values);

/// How long the work takes, in seconds.
template <class Work>
double Timed(Work&& work) {
    const LONGLONG start = Now();
    work();
    return Seconds(Now() - start);
}

struct Medians {
    double product, floor;
    double ratio; ///< of each two runs side by side: the machine's speed changes from moment to moment
};

/// Runs both alternately, `runs` times each after one run that does not count. Either returns what it
/// measured.
template <class Product, class Floor>
Medians Alternate(int runs, Product&& product, Floor&& floor) {
    std::vector<double> products;
    std::vector<double> floors;
    std::vector<double> ratios;
    product();
    floor();
    for (int run = 0; run < runs; ++run) {
        // The one that runs second may find memory and processes in another state: it is each in turn.
        if (run % 2 == 0) {
            products.push_back(product());
            floors.push_back(floor());
        } else {
            floors.push_back(floor());
            products.push_back(product());
        }
        ratios.push_back(products.back() / floors.back());
    }
    return {Median(products), Median(floors), Median(ratios)};
}

} // namespace obrin::bench
