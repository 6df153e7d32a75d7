// Every measurement of the benchmark: each in a file of its own, which says what is compared with what.
// A new one is declared here and entered in the list of bench.cpp. They throw when something cannot be
// measured.
#pragma once

#include "Table.h"

namespace obrin::bench {

std::vector<Row> MeasureTyping();
std::vector<Row> MeasureTree();
std::vector<Row> MeasureListing();
std::vector<Row> MeasureChecking();
std::vector<Row> MeasureStart();
std::vector<Row> MeasureWaiting();
std::vector<Row> MeasureResizing();
std::vector<Row> MeasureSettings();
std::vector<Row> MeasureSize();

} // namespace obrin::bench
