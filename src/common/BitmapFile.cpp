#include "common/BitmapFile.h"

#include <algorithm>
#include <array>

namespace obrin {

namespace {

constexpr std::size_t fileHeaderBytes = 14;
constexpr std::uint32_t coreHeaderBytes = 12; // the oldest kind, with sizes of 16 bits
constexpr std::uint32_t infoHeaderBytes = 40; // later kinds are longer

enum Compression : std::uint32_t { None = 0, RunLength8 = 1, RunLength4 = 2, BitFields = 3 };

// Little-endian.
std::uint32_t Number(std::string_view bytes, std::size_t place, std::size_t size) {
    std::uint32_t number = 0;
    for (std::size_t i = size; i-- > 0;)
        number = number << 8 | static_cast<unsigned char>(bytes[place + i]);
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
    const std::uint32_t headerBytes = Number(header, 14, 4);
    const bool isCore = headerBytes == coreHeaderBytes;
    if (!isCore && (headerBytes < infoHeaderBytes || header.size() < bitmapHeaderBytes))
        return false;

    const std::uint32_t pixels = Number(header, 10, 4); // where they begin
    const std::uint32_t width = isCore ? Number(header, 18, 2) : Number(header, 18, 4);
    // A height below zero means that the first row is the upper one.
    const std::uint64_t height = isCore ? Number(header, 20, 2) : Magnitude(Number(header, 22, 4));
    const std::uint32_t bits = isCore ? Number(header, 24, 2) : Number(header, 28, 2);
    const std::uint32_t compression = isCore ? Compression::None : Number(header, 30, 4);
    const std::uint32_t colours = isCore ? 0 : Number(header, 46, 4);

    constexpr std::array<std::uint32_t, 6> knownBits{1, 4, 8, 16, 24, 32};
    constexpr std::uint32_t mostPixels = 32767; // of each side: more than any screen has
    if (width == 0 || width > mostPixels || height == 0 || height > mostPixels ||
        std::ranges::find(knownBits, bits) == knownBits.end())
        return false;

    const bool hasPalette = bits <= 8;
    if (colours > 256 || (hasPalette && colours > (1U << bits)))
        return false;
    const std::uint64_t palette =
        hasPalette ? (isCore ? 3U : 4U) * std::uint64_t{colours == 0 ? 1U << bits : colours} : 0;
    if (pixels < fileHeaderBytes + std::uint64_t{headerBytes} + palette || pixels >= fileSize)
        return false;

    switch (compression) {
    case Compression::None:
    case Compression::BitFields: {
        const std::uint64_t row = (std::uint64_t{width} * bits + 31) / 32 * 4; // in whole 32-bit words
        return (compression == Compression::None || bits >= 16) && row * height <= fileSize - pixels;
    }
    case Compression::RunLength8:
    case Compression::RunLength4: {
        // The platform reads on until the picture is complete: its end cannot be told from the header.
        const std::uint32_t stored = Number(header, 34, 4);
        return bits == (compression == Compression::RunLength8 ? 8U : 4U) && stored > 0 &&
               stored <= fileSize - pixels;
    }
    default:
        return false;
    }
}

} // namespace obrin
