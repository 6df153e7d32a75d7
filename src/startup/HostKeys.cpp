#include "startup/HostKeys.h"

#include "common/Numbers.h"

namespace obrin {

std::vector<std::uint8_t> HostKeyCodes(std::string command, UpperCaser upperCase) {
    // Upper-cased before the backslashes are replaced: on some code pages 220 is a lower-case letter.
    const std::string text = upperCase(std::move(command));
    std::vector<std::uint8_t> codes;
    codes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n' && i > 0 && text[i - 1] == '\r')
            continue;
        codes.push_back(text[i] == '\\' ? std::uint8_t{220} : static_cast<std::uint8_t>(text[i]));
    }
    return codes;
}

std::string LoadAndRun(std::string_view program) {
    return std::string("Load ").append(program).append("\rRun\r");
}

std::string StartSystem(std::string_view systemCode) {
    return LoadAndRun("Core\\StartSys").append(systemCode).append("\r");
}

std::string HostStartArguments(int wsid) {
    return "run core\\start -" + PlainDecimal(wsid);
}

std::string StationCaption(int wsid) {
    return "Obrin-" + PaddedDecimal(wsid, 2);
}

std::string MarkerFileName(int wsid) {
    return "Menu" + SignedDecimal(wsid) + ".txt";
}

} // namespace obrin
