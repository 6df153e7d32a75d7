// The table that the benchmark prints, row by row.
#pragma once

#include "Clock.h"

namespace obrin::bench {

void PrintHead();

/// Prints a row whose target limits the ratio of the product to the bare calls. A row over its target is
/// marked.
void PrintRatio(const char* what, const char* unit, const Medians& medians, double target);

/// Prints a row whose target limits the product's own value.
void PrintValue(const char* what, const char* unit, double value, double target);

} // namespace obrin::bench
