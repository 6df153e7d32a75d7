#include "Table.h"

#include <cstdio>
#include <utility>

namespace obrin::bench {

namespace {

constexpr const char* empty = "-";

std::string Number(double value) {
    char text[32];
    // Three digits or more, and no more decimals than the clock can tell.
    std::snprintf(text, sizeof text, "%.*f", value < 10 ? 3 : value < 100 ? 2 : 1, value);
    return text;
}

std::string Measure(double value, const char* unit) {
    return Number(value) + ' ' + unit;
}

} // namespace

Row WithinRatio(std::string what, const char* unit, const Medians& medians, double target) {
    return {.what = std::move(what),
            .unit = unit,
            .product = medians.product,
            .floor = medians.floor,
            .ratio = medians.ratio,
            .limits = Row::Limits::Ratio,
            .target = target};
}

Row Within(std::string what, const char* unit, const Medians& medians, double target) {
    Row row = WithinRatio(std::move(what), unit, medians, target);
    row.limits = Row::Limits::Product;
    return row;
}

Row Within(std::string what, const char* unit, double product, double target) {
    return {.what = std::move(what),
            .unit = unit,
            .product = product,
            .floor = std::nullopt,
            .ratio = std::nullopt,
            .limits = Row::Limits::Product,
            .target = target};
}

void PrintHead() {
    std::printf("%-52s %12s %12s %7s %12s\n", "what", "product", "floor", "ratio", "target");
}

int Print(const std::vector<Row>& rows) {
    int over = 0;
    for (const Row& row : rows) {
        const bool ofRatio = row.limits == Row::Limits::Ratio;
        const bool isOver = (ofRatio ? *row.ratio : row.product) > row.target;
        over += isOver ? 1 : 0;
        char target[32];
        std::snprintf(target, sizeof target, ofRatio ? "%.2f x" : "%.0f %s", row.target, row.unit);
        std::printf("%-52s %12s %12s %7s %12s%s\n", row.what.c_str(), Measure(row.product, row.unit).c_str(),
                    row.floor ? Measure(*row.floor, row.unit).c_str() : empty,
                    row.ratio ? Number(*row.ratio).c_str() : empty, target, isOver ? "  OVER" : "");
    }
    std::fflush(stdout);
    return over;
}

} // namespace obrin::bench
