// Compares the menu with bare calls of Windows that do the same work, and prints a table.
//
//   bench.exe              makes all measurements
//   bench.exe typing size  makes only these measurements
//
// Returns 0 even if a row is over its target, because other work of the machine disturbs the figures. Returns
// 1 if a measurement failed.

#include "Measurements.h"
#include "Table.h"

#include "platform/WindowsApi.h"

#include <cstdio>
#include <exception>
#include <set>
#include <string>

namespace {

using namespace obrin::bench;

struct Measurement {
    const char* name;
    void (*measure)();
};

constexpr Measurement measurements[] = {
    {"typing", MeasureTyping},   {"tree", MeasureTree},   {"start", MeasureStart},
    {"caption", MeasureCaption}, {"opens", MeasureOpens}, {"wait", MeasureWait},
    {"dialog", MeasureDialog},   {"save", MeasureSave},   {"load", MeasureLoad},
    {"memory", MeasureMemory},   {"size", MeasureSize},
};

} // namespace

int main(int count, char** arguments) {
    const std::set<std::string> names(arguments + 1, arguments + count);
    const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES};
    InitCommonControlsEx(&controls);
    int exitCode = 0;
    PrintHeader();
    for (const auto& [name, measure] : measurements) {
        if (!names.empty() && !names.contains(name))
            continue;
        try {
            measure();
        } catch (const std::exception& error) {
            std::printf("%s: not measured: %s\n", name, error.what());
            exitCode = 1;
        }
    }
    return exitCode;
}
