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

Medians MeasureAlternately(int runs, const std::function<double()>& menu,
                           const std::function<double()>& bare) {
    std::vector<double> menus;
    std::vector<double> bares;
    std::vector<double> ratios;
    menu();
    bare();
    for (int run = 0; run < runs; ++run) {
        // The first run of a pair may slow down or speed up the second, so the order alternates.
        if (run % 2 == 0) {
            menus.push_back(menu());
            bares.push_back(bare());
        } else {
            bares.push_back(bare());
            menus.push_back(menu());
        }
        ratios.push_back(menus.back() / bares.back());
    }
    return {Median(menus), Median(bares), Median(ratios)};
}

} // namespace obrin::bench
