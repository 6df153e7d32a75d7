#include "settings/InifileManipulation.h"

#include "common/RunTimeError.h"

namespace obrin {

std::string FormatIniLine(std::string_view key, std::string_view value) {
    constexpr std::size_t keyColumn = 18;
    if (key.size() > keyColumn)
        throw RunTimeError(PlatformError::InvalidData, "Formatting the setting " + std::string(key));
    std::string line(key);
    line.resize(keyColumn, ' ');
    return line.append("=     ").append(value);
}

} // namespace obrin
