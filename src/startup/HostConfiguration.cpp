#include "startup/HostConfiguration.h"

#include "common/Lines.h"

namespace obrin {

namespace {

constexpr std::string_view lineEnd = "\r\n";

bool IsDriveLine(std::string_view line, UpperCaser upperCase) {
    // A line that begins with "Drivers" also counts.
    return upperCase(std::string(line.substr(0, 5))) == "DRIVE";
}

} // namespace

std::string BlankDriveLines(std::string_view configuration, UpperCaser upperCase) {
    std::string blanked;
    LineReader lines(configuration, LoneLf::EndsLine); // some editors write lone LFs
    while (const auto line = lines.Next()) {
        if (!IsDriveLine(*line, upperCase))
            blanked += *line;
        blanked += lineEnd;
    }
    return blanked;
}

std::string AddDriveLine(std::string_view shortFolder, std::string_view blankedConfiguration) {
    std::string configuration = "Drive S,";
    configuration.append(shortFolder).append(",X,\\").append(lineEnd);
    LineReader lines(blankedConfiguration);
    while (const auto line = lines.Next()) {
        if (!TrimBlanks(*line).empty())
            configuration.append(*line).append(lineEnd);
    }
    return configuration;
}

} // namespace obrin
