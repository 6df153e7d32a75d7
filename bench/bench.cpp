// Measures the launcher against bare Windows calls that do the same work, and prints one table.
//
//   bench.exe              everything
//   bench.exe typing size  these measurements only
//
// Ends with 0 even when a row is over its target: other programs of the machine disturb the figures. Ends
// with 1 when something could not be measured.

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
    PrintHead();
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
