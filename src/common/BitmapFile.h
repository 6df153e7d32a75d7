// Checks the header of a BMP file. Wine trusts it, and reads beyond the end of a file with a wrong header.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace obrin {

constexpr std::size_t bitmapHeaderBytes = 54; ///< the bytes at the start of the file that the check needs

/// Returns whether the header describes a picture that fits completely into a file of `fileSize` bytes.
bool IsWholeBitmap(std::string_view header, std::uint64_t fileSize);

} // namespace obrin
