// Fast searches through bytes: a menu file may be of megabytes, and the run-time library of Windows looks at
// one byte after the other.
#pragma once

#include <cstddef>
#include <string_view>

namespace obrin {

/// Where a byte stands in a text, from `start` on; npos when nowhere.
std::size_t FindByte(std::string_view text, char wanted, std::size_t start = 0);

/// Where the first byte stands, from `start` on, that is a control character or beyond ASCII, or else is
/// `wanted`; npos when nowhere.
std::size_t FindUnusualByte(std::string_view text, char wanted = '\0', std::size_t start = 0);

} // namespace obrin
