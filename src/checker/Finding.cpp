#include "checker/Finding.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

namespace obrin {

namespace {

std::string Count(std::size_t number, const char* what) {
    return std::to_string(number) + ' ' + what + (number == 1 ? "" : "s");
}

const char* DescribeEffect(Effect effect) {
    switch (effect) {
    case Effect::EndsEveryStart:
        return "the menu ends with an error at every start";
    case Effect::EndsShownSystem:
        return "the menu ends with an error when it shows this system";
    case Effect::EndsProgramRun:
        return "the menu ends with an error when an operator runs a program";
    case Effect::EndsProperties:
        return "the Properties dialog ends the menu with an error";
    case Effect::WaitsForEver:
        return "the menu waits for ever";
    case Effect::None:
    case Effect::FailsForOthers:
        break;
    }
    return "";
}

} // namespace

Trouble MakeVariableTrouble(const std::string& value, const Trouble& folderTrouble) {
    return {"this variable leads to " + value + ": " + folderTrouble.problem,
            folderTrouble.remedy + ", or correct the variable"};
}

void Add(Findings& findings, Effect effect, Place place, Trouble trouble, std::string consequence) {
    findings.push_back({effect, std::move(place), std::move(trouble), std::move(consequence)});
}

void Add(Findings& findings, Findings more) {
    std::ranges::move(more, std::back_inserter(findings));
}

bool IsError(const Finding& finding) {
    return finding.effect != Effect::None && finding.effect != Effect::EndsProperties;
}

bool HasErrors(const Findings& findings) {
    return std::ranges::any_of(findings, IsError);
}

std::string Report(Findings findings) {
    std::ranges::stable_sort(findings, {}, [](const Finding& finding) {
        return std::tie(finding.place.file, finding.place.line);
    });
    std::string report;
    for (const Finding& finding : findings) {
        const auto& [effect, place, trouble, consequence] = finding;
        report += ReplaceControlCharacters(
                      place.file + (place.line == 0 ? "" : ':' + std::to_string(place.line)) +
                      (IsError(finding) ? ": error: " : ": warning: ") + trouble.problem + ": " +
                      (consequence.empty() ? DescribeEffect(effect) : consequence) + "; " + trouble.remedy) +
                  "\r\n";
    }
    return report;
}

std::string Summary(const Findings& findings, std::size_t menuFiles, std::string_view details) {
    const auto errors = static_cast<std::size_t>(std::ranges::count_if(findings, IsError));
    return Count(errors, "error") + ", " + Count(findings.size() - errors, "warning") + " in " +
           Count(menuFiles, "menu file") + " (" + ReplaceControlCharacters(std::string(details)) + ")\r\n";
}

std::string ReplaceControlCharacters(std::string text) {
    std::ranges::replace_if(
        text, [](char byte) { return (byte >= 0 && byte < ' ') || byte == '\x7F'; }, '?');
    return text;
}

std::string Shorten(std::string_view text, LeadByteTest isLeadByte) {
    const auto start = FirstCharacters(text, 200, isLeadByte);
    return std::string(start) + (start.size() < text.size() ? "..." : "");
}

} // namespace obrin
