// Measures the launcher against bare Windows calls that do the same work, and prints one table.
//
//   bench.exe              everything
//   bench.exe typing size  these measurements only
//
// Ends with 0 whatever the figures are: they are a machine's, and another program may have disturbed them. A
// measurement that could not be made at all ends it with 1.
//
// It also plays the other processes that the measurements need: see Roles.h.

#include "Measurements.h"
#include "Roles.h"

#include "platform/WindowsApi.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>
#include <span>
#include <string_view>

namespace obrin::bench {

namespace {

struct Measurement {
    std::string_view name;
    std::vector<Row> (*measure)();
};

constexpr std::array<Measurement, 9> measurements{{
    {"typing", MeasureTyping},
    {"tree", MeasureTree},
    {"listing", MeasureListing},
    {"checking", MeasureChecking},
    {"start", MeasureStart},
    {"waiting", MeasureWaiting},
    {"resizing", MeasureResizing},
    {"settings", MeasureSettings},
    {"size", MeasureSize},
}};

int Run(std::span<char*> names) {
    const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES};
    InitCommonControlsEx(&controls);
    int over = 0;
    int failed = 0;
    PrintHead();
    for (const auto& [name, measure] : measurements) {
        const auto isNamed = [&name = name](const char* argument) { return argument == name; };
        if (!names.empty() && std::ranges::none_of(names, isNamed))
            continue;
        try {
            over += Print(measure());
        } catch (const std::exception& error) {
            ++failed;
            std::printf("%s: not measured: %s\n", name.data(), error.what());
        }
    }
    if (over > 0)
        std::printf("%d over target\n", over);
    return failed == 0 ? 0 : 1;
}

} // namespace

} // namespace obrin::bench

int main(int count, char** arguments) {
    const std::span<char*> all(arguments, static_cast<std::size_t>(count));
    if (const auto role = obrin::bench::PlayRole(all.subspan(1)))
        return *role;
    return obrin::bench::Run(all.subspan(1));
}
