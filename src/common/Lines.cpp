#include "common/Lines.h"

namespace obrin {

std::optional<std::string_view> LineReader::Next() {
    if (rest.empty())
        return std::nullopt;
    const auto end = loneLf == LoneLf::EndsLine ? rest.find_first_of("\r\n") : rest.find('\r');
    const auto line = rest.substr(0, end);
    if (end == std::string_view::npos) {
        rest = {};
        return line;
    }
    const bool pair = rest[end] == '\r' && end + 1 < rest.size() && rest[end + 1] == '\n';
    rest.remove_prefix(end + (pair ? 2 : 1));
    return line;
}

} // namespace obrin
