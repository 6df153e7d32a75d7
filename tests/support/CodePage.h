// A made-up code page for the tests and the fuzz targets of the rules, which run without Windows.
#pragma once

#include <string>

namespace obrin::test {

/// 81 to 9F hex begin a character of two bytes.
inline bool IsLeadByte(char byte) {
    return byte >= '\x81' && byte <= '\x9F';
}

/// Upper-cases a to z.
inline std::string UpperCase(std::string text) {
    for (char& byte : text)
        byte = byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 'a' + 'A') : byte;
    return text;
}

} // namespace obrin::test
