#include "Table.h"

#include <cstdio>
#include <string>

namespace obrin::bench {

namespace {

// At least three digits, and no more decimals than the clock can tell.
std::string Measure(double value, const char* unit) {
    char text[32];
    std::snprintf(text, sizeof text, "%.*f %s", value < 10 ? 3 : value < 100 ? 2 : 1, value, unit);
    return text;
}

void PrintRow(const char* what, const char* product, const char* floor, const char* ratio, const char* target,
              bool isOver) {
    std::printf("%-52s %12s %12s %8s %10s%s\n", what, product, floor, ratio, target, isOver ? "  OVER" : "");
    std::fflush(stdout); // the next row can take a minute
}

} // namespace

void PrintHead() {
    PrintRow("what", "product", "floor", "ratio", "target", false);
}

void PrintRatio(const char* what, const char* unit, const Medians& medians, double target) {
    PrintRow(what, Measure(medians.product, unit).c_str(), Measure(medians.floor, unit).c_str(),
             Measure(medians.ratio, "x").c_str(), Measure(target, "x").c_str(), medians.ratio > target);
}

void PrintValue(const char* what, const char* unit, double value, double target) {
    PrintRow(what, Measure(value, unit).c_str(), "-", "-", Measure(target, unit).c_str(), value > target);
}

} // namespace obrin::bench
