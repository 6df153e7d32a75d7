#include "checker/Finding.h"

#include <algorithm>
#include <tuple>

namespace obrin {

namespace {

std::string Count(std::size_t number, const char* what) {
    return std::to_string(number) + ' ' + what + (number == 1 ? "" : "s");
}

std::size_t CountOf(Finding::Kind kind, const std::vector<Finding>& findings) {
    return static_cast<std::size_t>(std::ranges::count(findings, kind, &Finding::kind));
}

} // namespace

std::string Report(std::vector<Finding> findings) {
    std::ranges::stable_sort(findings, {},
                             [](const Finding& finding) { return std::tie(finding.file, finding.line); });
    std::string report;
    for (const auto& [kind, line, text, file] : findings) {
        report += file;
        if (line != 0)
            report += ':' + std::to_string(line);
        report.append(kind == Finding::Kind::Error ? ": error: " : ": warning: ").append(text).append("\r\n");
    }
    return report;
}

std::string Summary(const std::vector<Finding>& findings, std::size_t menuFiles) {
    return Count(CountOf(Finding::Kind::Error, findings), "error") + ", " +
           Count(CountOf(Finding::Kind::Warning, findings), "warning") + " in " +
           Count(menuFiles, "menu file") + "\r\n";
}

bool HasErrors(const std::vector<Finding>& findings) {
    return CountOf(Finding::Kind::Error, findings) > 0;
}

std::string Shown(std::string_view text, LeadByteTest isLeadByte) {
    constexpr std::size_t most = 200; // characters
    const auto start = FirstCharacters(text, most, isLeadByte);
    std::string shown(start);
    std::ranges::replace_if(
        shown, [](char byte) { return (byte >= 0 && byte < ' ') || byte == '\x7F'; }, '?');
    return start.size() < text.size() ? shown + "..." : shown;
}

} // namespace obrin
