// The header of a BMP file. The platform trusts it: one that lies makes some versions read beyond the file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace obrin {

constexpr std::size_t bitmapHeaderBytes = 54; ///< as many as are needed of the file's start

/// Whether the header is one of a picture that lies in a file of this size as a whole.
bool IsWholeBitmap(std::string_view header, std::uint64_t fileSize);

} // namespace obrin
