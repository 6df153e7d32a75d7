// Converts the bytes of a registry value to text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace obrin {

/// Returns the text of a string (type 1) or a 32-bit number (type 4), or an empty text for other types.
/// Ignores one NUL at the end of the bytes.
std::string RegistryText(std::uint32_t type, std::string_view bytes);

} // namespace obrin
