#include "Fuzz.h"

#include "checker/MenuCheck.h"
#include "menu/MenuDefinition.h"

#include <algorithm>
#include <string>

namespace {

// Every entry hangs below a heading above it, or stands at the top level.
void RequireTree(const obrin::MenuDefinition& definition) {
    const auto& entries = definition.entries;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto parent = static_cast<std::size_t>(entries[i].parent);
        Require(parent <= i);
        Require(parent == 0 || !entries[parent - 1].isProgram);
        Require(!entries[i].isProgram || entries[i].text.find('>') == std::string::npos);
    }
}

// The checker reports an error when, and only when, the menu refuses the file.
void RequireSameVerdict(std::string_view file, const obrin::MenuDefinition& definition,
                        obrin::LeadByteTest isLeadByte) {
    const auto check = obrin::CheckMenuFile(file, {.isLeadByte = isLeadByte}, {.keys = true, .tree = true});
    Require(definition.faults.empty() != obrin::HasErrors(check.findings));
    // One line for each finding, whatever the file holds.
    const std::string report = obrin::Report(check.findings);
    Require(static_cast<std::size_t>(std::ranges::count(report, '\n')) == check.findings.size());
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto file = Text(data, size);
    for (const obrin::LeadByteTest isLeadByte :
         {obrin::LeadByteTest{nullptr}, obrin::LeadByteTest{IsLeadByte}}) {
        const auto definition = obrin::ParseMenuDefinition(file, isLeadByte);
        RequireTree(definition);
        RequireSameVerdict(file, definition, isLeadByte);
    }
    return 0;
}
