#include "common/BitmapFile.h"

#include <algorithm>
#include <array>

namespace obrin {

namespace {

constexpr std::size_t fileHeaderBytes = 14;
constexpr std::uint32_t coreHeaderBytes = 12; // the oldest format, with 16-bit sizes
constexpr std::uint32_t infoHeaderBytes = 40; // later formats are longer

enum Compression : std::uint32_t { None = 0, RunLength8 = 1, RunLength4 = 2, BitFields = 3 };

std::uint32_t ReadLittleEndian(std::string_view bytes, std::size_t offset, std::size_t size) {
    std::uint32_t number = 0;
    for (std::size_t i = size; i-- > 0;)
        number = number << 8 | static_cast<unsigned char>(bytes[offset + i]);
    return number;
}

std::uint64_t Magnitude(std::uint32_t number) {
    const std::int64_t value = static_cast<std::int32_t>(number);
    return static_cast<std::uint64_t>(value < 0 ? -value : value);
}

} // namespace

bool IsWholeBitmap(std::string_view header, std::uint64_t fileSize) {
    if (header.size() < fileHeaderBytes + coreHeaderBytes || !header.starts_with("BM"))
        return false;
    const std::uint32_t headerBytes = ReadLittleEndian(header, 14, 4);
    const bool isCore = headerBytes == coreHeaderBytes;
    if (!isCore && (headerBytes < infoHeaderBytes || header.size() < bitmapHeaderBytes))
        return false;

    const std::uint32_t pixelOffset = ReadLittleEndian(header, 10, 4);
    const std::uint32_t width = ReadLittleEndian(header, 18, isCore ? 2 : 4);
    // A negative height means that the rows go from top to bottom.
    const std::uint64_t height =
        isCore ? ReadLittleEndian(header, 20, 2) : Magnitude(ReadLittleEndian(header, 22, 4));
    const std::uint32_t bitsPerPixel = ReadLittleEndian(header, isCore ? 24 : 28, 2);
    const std::uint32_t compression = isCore ? Compression::None : ReadLittleEndian(header, 30, 4);
    const std::uint32_t colours = isCore ? 0 : ReadLittleEndian(header, 46, 4);

    constexpr std::array<std::uint32_t, 6> validBits{1, 4, 8, 16, 24, 32};
    constexpr std::uint32_t maxSide = 32767; // pixels, more than any screen has
    if (width == 0 || width > maxSide || height == 0 || height > maxSide ||
        std::ranges::find(validBits, bitsPerPixel) == validBits.end())
        return false;

    const bool hasPalette = bitsPerPixel <= 8;
    if (colours > 256 || (hasPalette && colours > (1U << bitsPerPixel)))
        return false;
    const std::uint64_t paletteBytes =
        hasPalette ? (isCore ? 3U : 4U) * std::uint64_t{colours == 0 ? 1U << bitsPerPixel : colours} : 0;
    if (pixelOffset < fileHeaderBytes + std::uint64_t{headerBytes} + paletteBytes || pixelOffset >= fileSize)
        return false;

    switch (compression) {
    case Compression::None:
    case Compression::BitFields: {
        // A row is stored in whole 32-bit words.
        const std::uint64_t rowBytes = (std::uint64_t{width} * bitsPerPixel + 31) / 32 * 4;
        return (compression == Compression::None || bitsPerPixel >= 16) &&
               rowBytes * height <= fileSize - pixelOffset;
    }
    case Compression::RunLength8:
    case Compression::RunLength4: {
        // The header does not tell where each row ends, so only the compressed size can be checked.
        const std::uint32_t compressedBytes = ReadLittleEndian(header, 34, 4);
        return bitsPerPixel == (compression == Compression::RunLength8 ? 8U : 4U) && compressedBytes > 0 &&
               compressedBytes <= fileSize - pixelOffset;
    }
    default:
        return false;
    }
}

} // namespace obrin
