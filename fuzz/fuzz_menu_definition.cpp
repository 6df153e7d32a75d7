#include "Fuzz.h"

#include "checker/MenuCheck.h"
#include "common/RunTimeError.h"
#include "menu/MenuDefinition.h"

#include <algorithm>
#include <optional>

namespace {

using Definition = std::optional<obrin::MenuDefinition>;

// What a file holds, checked; none of one that is refused.
Definition Parse(std::string_view file, obrin::LeadByteTest isLeadByte) {
    try {
        auto definition = obrin::ParseMenuDefinition(std::string(file), "UB.mnu", isLeadByte);
        const auto& entries = definition.entries;
        for (std::size_t i = 0; i < entries.size(); ++i) {
            const auto parent = static_cast<std::size_t>(entries[i].parent);
            Require(parent <= i); // a heading that stands above the entry
            Require(parent == 0 || entries[parent - 1].key.empty());
            Require(entries[i].key.empty() || entries[i].text.find('>') == std::string_view::npos);
        }
        return definition;
    } catch (const obrin::RunTimeError&) {
        return {};
    }
}

// Parts that grow, each time in other memory.
obrin::MoreText InParts(std::string_view text, std::size_t size) {
    return [=, memory = std::string()](std::string_view rest) mutable {
        const auto part = text.substr(0, std::max(size, rest.size()));
        text.remove_prefix(part.size());
        memory = std::string(rest).append(part);
        return std::string_view(memory);
    };
}

// The same of a file in parts; no error, and the menu takes the file.
void Check(std::string_view file, obrin::LeadByteTest isLeadByte, const Definition& definition) {
    const obrin::CodePage codePage{.isLeadByte = isLeadByte};
    const obrin::MenuWishes wishes{.keys = true, .tree = true};
    const auto check = obrin::CheckMenuFile(file, codePage, wishes);
    const auto inParts = obrin::CheckMenuFile(InParts(file, 1 + file.size() % 7), codePage, wishes);
    const std::string report = obrin::Report(check.findings);
    Require(obrin::Report(inParts.findings) == report);
    Require(inParts.tree == check.tree && inParts.keys == check.keys);
    Require(definition.has_value() != obrin::HasErrors(check.findings));
    // A line each, whatever stands in the file.
    Require(static_cast<std::size_t>(std::ranges::count(report, '\n')) == check.findings.size());
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string file(Text(data, size));
    Check(file, nullptr, Parse(file, nullptr));
    const Definition definition = Parse(file, IsLeadByte);
    Check(file, IsLeadByte, definition);
    // Second bytes that look like marks are none: the tree is that of any others.
    for (std::size_t i = 0; i + 1 < file.size(); ++i) {
        if (IsLeadByte(file[i]) && (file[++i] == '^' || file[i] == '\\'))
            file[i] = '~';
    }
    const Definition plain = Parse(file, nullptr);
    if (!plain) // keys may have become equal
        return 0;
    Require(definition && std::ranges::equal(plain->entries, definition->entries, [](auto& a, auto& b) {
                return a.text.size() == b.text.size() && a.parent == b.parent;
            }));
    return 0;
}
