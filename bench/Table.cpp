#include "Table.h"

#include <cstdio>
#include <string>

namespace obrin::bench {

namespace {

std::string Format(double value, const char* unit) {
    char text[32];
    std::snprintf(text, sizeof text, "%.*f %s", value < 10 ? 3 : value < 100 ? 2 : 1, value, unit);
    return text;
}

void PrintRow(const char* what, const char* menu, const char* bare, const char* ratio, const char* target,
              bool isOverTarget) {
    std::printf("%-52s %12s %12s %8s %10s%s\n", what, menu, bare, ratio, target,
                isOverTarget ? "  OVER" : "");
    std::fflush(stdout); // the next row can take a minute
}

} // namespace

void PrintHeader() {
    PrintRow("what", "menu", "bare calls", "ratio", "target", false);
}

void PrintRatio(const char* what, const char* unit, const Medians& medians, double target) {
    PrintRow(what, Format(medians.menu, unit).c_str(), Format(medians.bare, unit).c_str(),
             Format(medians.ratio, "x").c_str(), Format(target, "x").c_str(), medians.ratio > target);
}

void PrintValue(const char* what, const char* unit, double value, double target) {
    PrintRow(what, Format(value, unit).c_str(), "-", "-", Format(target, unit).c_str(), value > target);
}

} // namespace obrin::bench
