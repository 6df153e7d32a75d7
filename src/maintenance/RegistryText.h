// A registry value's bytes as text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace obrin {

/// The text of a value of the platform's type number: of a string (1) its characters, of a 32-bit number (4)
/// a decimal number, of any other type nothing. One NUL at the end of the bytes is no part of the value.
std::string RegistryText(std::uint32_t type, std::string_view bytes);

} // namespace obrin
