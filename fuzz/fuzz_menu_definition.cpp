// Checks that every menu file gives a tree, and that menu and checker refuse the same files.
#include "Fuzz.h"

#include "checker/MenuFileRules.h"
#include "menu/MenuDefinition.h"

#include <algorithm>

// Each entry is at top level (parent 0) or below a heading that comes before it. entries[0] has tree index 1.
static void RequireTree(const std::vector<obrin::MenuEntry>& entries) {
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto parent = static_cast<std::size_t>(entries[i].parent);
        Require(parent <= i);
        Require(parent == 0 || !entries[parent - 1].isProgram);
    }
}

static void RequireSameVerdict(std::string_view file, const obrin::MenuDefinition& definition) {
    const auto findings = obrin::CheckMenuFile("F", file, definition, {.isLeadByte = IsLeadByte});
    Require(definition.faults.empty() != obrin::HasErrors(findings));
    // Control characters in the file add no lines to the report or to the printed tree.
    const auto lines = [](const std::string& text) {
        return static_cast<std::size_t>(std::ranges::count(text, '\n'));
    };
    Require(lines(obrin::Report(findings)) == findings.size());
    Require(lines(obrin::FormatMenuTree(definition, IsLeadByte)) == definition.entries.size() + 1);
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto file = Text(data, size);
    const auto definition = obrin::ParseMenuDefinition(file, IsLeadByte);
    RequireTree(definition.entries);
    RequireSameVerdict(file, definition);
    return 0;
}
