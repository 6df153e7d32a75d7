#include "common/Lines.h"

namespace obrin {

std::optional<std::string_view> LineReader::Next() {
    if (rest.empty())
        return std::nullopt;
    const auto end = loneLf == LoneLf::EndsLine ? rest.find_first_of("\r\n") : rest.find('\r');
    const auto line = rest.substr(0, end);
    rest.remove_prefix(line.size());
    if (rest.starts_with("\r\n"))
        rest.remove_prefix(2);
    else if (!rest.empty())
        rest.remove_prefix(1);
    return line;
}

} // namespace obrin
