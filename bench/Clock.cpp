#include "Clock.h"

#include <algorithm>

namespace obrin::bench {

LONGLONG Now() {
    LARGE_INTEGER ticks;
    QueryPerformanceCounter(&ticks);
    return ticks.QuadPart;
}

double Milliseconds(LONGLONG ticks) {
    LARGE_INTEGER frequency;
    QueryPerformanceFrequency(&frequency);
    return 1e3 * static_cast<double>(ticks) / static_cast<double>(frequency.QuadPart);
}

double MeasureTime(const std::function<void()>& work) {
    const LONGLONG start = Now();
    work();
    return Milliseconds(Now() - start);
}

double Median(std::vector<double> values) {
    std::ranges::sort(values);
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

Medians MeasureAlternately(int runs, const std::function<double()>& product,
                           const std::function<double()>& floor) {
    std::vector<double> products;
    std::vector<double> floors;
    std::vector<double> ratios;
    product();
    floor();
    for (int run = 0; run < runs; ++run) {
        // The second of two runs may find memory and processes in another state, so they change places.
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
