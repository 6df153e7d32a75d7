// The table that the benchmark prints, row by row.
#pragma once

#include "Clock.h"

namespace obrin::bench {

void PrintHeader();

/// Prints a row with the ratio of the menu to the bare calls, and "OVER" if the ratio is over `target`.
void PrintRatio(const char* what, const char* unit, const Medians& medians, double target);

/// Prints a row with a value of the menu, and "OVER" if the value is over `target`.
void PrintValue(const char* what, const char* unit, double value, double target);

} // namespace obrin::bench
