// Checks the header of a BMP file. Windows trusts it: with a wrong header some versions read beyond the file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace obrin {

constexpr std::size_t bitmapHeaderBytes = 54; ///< the bytes at the start of the file that the check needs

/// Returns whether the header describes a picture that fits completely into a file of `fileSize` bytes.
bool IsWholeBitmap(std::string_view header, std::uint64_t fileSize);

} // namespace obrin
