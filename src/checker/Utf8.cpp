#include "checker/Utf8.h"

#include <cstddef>

namespace obrin {

namespace {

// Of the character that the byte begins; 0 when it begins none.
std::size_t CharacterBytes(unsigned char first) {
    if (first < 0x80)
        return 1;
    if (first >= 0xC2 && first < 0xE0) // C0 and C1 would spell ASCII in two bytes
        return 2;
    if (first >= 0xE0 && first < 0xF0)
        return 3;
    return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

} // namespace

Utf8 LookForUtf8(std::string_view text) {
    auto found = Utf8::Ascii;
    while (!text.empty()) {
        const auto bytes = CharacterBytes(static_cast<unsigned char>(text.front()));
        if (bytes == 0 || bytes > text.size())
            return Utf8::No;
        for (const char byte : text.substr(1, bytes - 1)) {
            if ((static_cast<unsigned char>(byte) & 0xC0) != 0x80)
                return Utf8::No;
        }
        found = bytes > 1 ? Utf8::Yes : found;
        text.remove_prefix(bytes);
    }
    return found;
}

} // namespace obrin
