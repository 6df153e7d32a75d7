#include "startup/HostKeys.h"

#include "common/Numbers.h"

namespace obrin {

std::vector<std::uint8_t> HostKeyCodes(std::string command, UpperCaser upperCase, LeadByteTest isLeadByte) {
    // The upper-casing comes first: in some code pages 220 is a lower-case letter.
    std::string text = upperCase(std::move(command));
    auto backslash = FindCharacter(text, '\\', isLeadByte);
    while (backslash != std::string::npos) {
        text[backslash] = static_cast<char>(220);
        backslash = FindCharacter(text, '\\', isLeadByte, backslash + 1);
    }
    std::vector<std::uint8_t> codes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\n' || i == 0 || text[i - 1] != '\r')
            codes.push_back(static_cast<std::uint8_t>(text[i]));
    }
    return codes;
}

std::string LoadAndRunCommand(std::string_view program) {
    return std::string("Load ").append(program).append("\rRun\r");
}

std::string StartSystemCommand(std::string_view systemCode) {
    return LoadAndRunCommand("Core\\StartSys").append(systemCode).append("\r");
}

std::string HostStartArguments(int wsid) {
    return "run core\\start -" + PlainDecimal(wsid);
}

std::string StationCaption(int wsid) {
    return "Obrin-" + PaddedDecimal(wsid, 2);
}

} // namespace obrin
