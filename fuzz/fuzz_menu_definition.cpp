#include "Fuzz.h"

#include "common/RunTimeError.h"
#include "menu/MenuDefinition.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const auto definition = obrin::ParseMenuDefinition(Text(data, size), "UB.mnu");
        for (std::size_t i = 0; i < definition.entries.size(); ++i) {
            const auto parent = static_cast<std::size_t>(definition.entries[i].parent);
            Require(parent <= i); // a heading that stands above the entry
            Require(parent == 0 || definition.entries[parent - 1].key.empty());
        }
    } catch (const obrin::RunTimeError&) {
    }
    return 0;
}
