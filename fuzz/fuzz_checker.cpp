#include "Fuzz.h"

#include "checker/FileChecks.h"
#include "checker/MenuCheck.h"
#include "common/RunTimeError.h"
#include "menu/MenuDefinition.h"

#include <algorithm>

namespace {

bool MenuTakes(std::string_view file, obrin::LeadByteTest isLeadByte) {
    try {
        obrin::ParseMenuDefinition(std::string(file), "UB.mnu", isLeadByte);
        return true;
    } catch (const obrin::RunTimeError&) {
        return false;
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

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto file = Text(data, size);
    for (const obrin::LeadByteTest isLeadByte : {obrin::LeadByteTest{}, &IsLeadByte}) {
        const obrin::CodePage codePage{.isLeadByte = isLeadByte};
        const obrin::MenuWishes wishes{.keys = true, .tree = true};
        const auto check = obrin::CheckMenuFile(file, codePage, wishes);
        const auto inParts = obrin::CheckMenuFile(InParts(file, 1 + size % 7), codePage, wishes);
        Require(obrin::Report(inParts.findings) == obrin::Report(check.findings));
        Require(inParts.tree == check.tree && inParts.keys == check.keys);
        // No error, and the menu shows the system; an error, and it does not.
        Require(MenuTakes(file, isLeadByte) != obrin::HasErrors(check.findings));
        // A line each, whatever stands in the file.
        const auto lines = static_cast<std::size_t>(std::ranges::count(obrin::Report(check.findings), '\n'));
        Require(lines == check.findings.size());
    }
    obrin::CheckUserRecords(file, IsLeadByte);
    obrin::CheckUpdateRegister(file);
    obrin::CheckSupportLibrary(file, file);
    return 0;
}
