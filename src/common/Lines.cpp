#include "common/Lines.h"

#include "common/Bytes.h"

namespace obrin {

std::optional<std::string_view> LineReader::Next() {
    auto end = FindEnd();
    // A line end in the last place may be the half of one.
    for (auto known = rest.size(); more != nullptr && (end == std::string_view::npos || end + 1 == known);
         known = rest.size()) {
        rest = more(rest);
        if (rest.size() == known)
            break;
        end = FindEnd();
    }
    if (rest.empty())
        return std::nullopt;
    const auto line = rest.substr(0, end);
    if (end == std::string_view::npos) {
        rest = {};
        return line;
    }
    const bool pair = rest[end] == '\r' && end + 1 < rest.size() && rest[end + 1] == '\n';
    rest.remove_prefix(end + (pair ? 2 : 1));
    return line;
}

std::size_t LineReader::FindEnd() {
    if (mark == '\0')
        return loneLf == LoneLf::EndsLine ? rest.find_first_of("\r\n") : FindByte(rest, '\r');
    auto end = FindUnusualByte(rest, mark);
    markPlace = std::string_view::npos;
    if (end != std::string_view::npos && rest[end] == mark) {
        markPlace = end;
        end = FindUnusualByte(rest, '\0', end + 1);
    }
    plain = end == std::string_view::npos || rest[end] == '\r';
    return plain ? end : FindByte(rest, '\r', end);
}

} // namespace obrin
