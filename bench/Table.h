// The rows of the benchmark and the table that they make.
#pragma once

#include "Clock.h"

#include <optional>
#include <string>
#include <vector>

namespace obrin::bench {

struct Row {
    std::string what;
    const char* unit;
    double product;
    std::optional<double> floor; ///< the same work by bare Windows calls
    std::optional<double> ratio; ///< product to floor

    enum class Limits { Ratio, Product };
    Limits limits;
    double target; ///< most that the ratio to the floor, or else the product's own value, may be
};

/// `what` stays within `target` times the bare calls.
Row WithinRatio(std::string what, const char* unit, const Medians& medians, double target);

/// `what` itself stays within `target`; a floor is for information.
Row Within(std::string what, const char* unit, double product, double target);
Row Within(std::string what, const char* unit, const Medians& medians, double target);

void PrintHead();
/// One line for each row, as soon as it is known; a row over its target is marked. Returns how many are.
int Print(const std::vector<Row>& rows);

} // namespace obrin::bench
