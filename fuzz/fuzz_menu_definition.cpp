#include "Fuzz.h"

#include "common/RunTimeError.h"
#include "menu/MenuDefinition.h"

namespace {

// The entries of a file, checked; none of one that is refused.
std::vector<obrin::MenuEntry> Entries(std::string_view file, obrin::LeadByteTest isLeadByte) {
    try {
        auto entries = obrin::ParseMenuDefinition(file, "UB.mnu", isLeadByte).entries;
        for (std::size_t i = 0; i < entries.size(); ++i) {
            const auto parent = static_cast<std::size_t>(entries[i].parent);
            Require(parent <= i); // a heading that stands above the entry
            Require(parent == 0 || entries[parent - 1].key.empty());
        }
        return entries;
    } catch (const obrin::RunTimeError&) {
        return {};
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string file(Text(data, size));
    Entries(file, nullptr);
    const auto entries = Entries(file, IsLeadByte);
    // Second bytes that look like marks are none: the tree is that of any others.
    for (std::size_t i = 0; i + 1 < file.size(); ++i) {
        if (IsLeadByte(file[i]) && (file[++i] == '^' || file[i] == '\\'))
            file[i] = '~';
    }
    const auto plain = Entries(file, nullptr);
    Require(plain.empty() || plain.size() == entries.size()); // keys may have become equal
    for (std::size_t i = 0; i < plain.size(); ++i) {
        Require(plain[i].text.size() == entries[i].text.size());
        Require(plain[i].parent == entries[i].parent);
    }
    return 0;
}
