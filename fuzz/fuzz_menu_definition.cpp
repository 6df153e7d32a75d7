#include "Fuzz.h"

#include "common/RunTimeError.h"
#include "menu/MenuDefinition.h"

namespace {

// What a file holds, checked; nothing of one that is refused.
obrin::MenuDefinition Definition(std::string_view file, obrin::LeadByteTest isLeadByte) {
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

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string file(Text(data, size));
    Definition(file, nullptr);
    const auto definition = Definition(file, IsLeadByte);
    const auto& entries = definition.entries;
    // Second bytes that look like marks are none: the tree is that of any others.
    for (std::size_t i = 0; i + 1 < file.size(); ++i) {
        if (IsLeadByte(file[i]) && (file[++i] == '^' || file[i] == '\\'))
            file[i] = '~';
    }
    const auto plainDefinition = Definition(file, nullptr);
    const auto& plain = plainDefinition.entries;
    Require(plain.empty() || plain.size() == entries.size()); // keys may have become equal
    for (std::size_t i = 0; i < plain.size(); ++i) {
        Require(plain[i].text.size() == entries[i].text.size());
        Require(plain[i].parent == entries[i].parent);
    }
    return 0;
}
