#include "common/BitmapFile.h"

#include <gtest/gtest.h>

#include <string>

namespace obrin {
namespace {

// Returns the lowest `size` bytes of a number, the lowest first.
std::string Bytes(std::uint32_t number, std::size_t size) {
    std::string bytes;
    for (; size > 0; --size, number >>= 8)
        bytes += static_cast<char>(number & 0xFF);
    return bytes;
}

// The header of a picture of two rows of four pixels, without a palette.
struct Header {
    std::uint32_t pixelOffset = 54;
    std::uint32_t headerBytes = 40;
    std::uint32_t width = 4;
    std::uint32_t height = 2;
    std::uint32_t bits = 24;
    std::uint32_t compression = 0;
    std::uint32_t compressedBytes = 0;
    std::uint32_t colours = 0;

    std::string Text() const {
        return "BM" + Bytes(0, 8) + Bytes(pixelOffset, 4) + Bytes(headerBytes, 4) + Bytes(width, 4) +
               Bytes(height, 4) + Bytes(1, 2) + Bytes(bits, 2) + Bytes(compression, 4) +
               Bytes(compressedBytes, 4) + Bytes(0, 8) + Bytes(colours, 4) + Bytes(0, 4);
    }
};

// The header of the oldest format, with a 16-bit width and height.
std::string OldHeader(std::uint32_t pixelOffset, std::uint32_t bits) {
    return "BM" + Bytes(0, 8) + Bytes(pixelOffset, 4) + Bytes(12, 4) + Bytes(4, 2) + Bytes(2, 2) +
           Bytes(1, 2) + Bytes(bits, 2);
}

constexpr std::uint64_t largeSize = 1ULL << 40; // larger than any picture
constexpr auto runLength8 = 1;
constexpr auto runLength4 = 2;
constexpr auto bitFields = 3;

TEST(IsWholeBitmap, NeedsAllPixelsInTheFile) {
    struct {
        const char* kind;
        std::string header;
        std::uint64_t size;
    } const cases[] = {
        {"rows of four pixels of three bytes", Header{}.Text(), 54 + 2 * 12},
        {"a negative height: the upper row comes first",
         Header{.height = static_cast<std::uint32_t>(-2)}.Text(), 54 + 2 * 12},
        {"rows padded to 32 bits", Header{.pixelOffset = 54 + 8, .bits = 1, .colours = 2}.Text(),
         54 + 8 + 2 * 4},
        {"compressed in 8 bits",
         Header{.pixelOffset = 2000, .bits = 8, .compression = runLength8, .compressedBytes = 100}.Text(),
         2100},
        {"compressed in 4 bits",
         Header{.pixelOffset = 2000, .bits = 4, .compression = runLength4, .compressedBytes = 8}.Text(),
         2008},
        {"bit fields", Header{.bits = 16, .compression = bitFields}.Text(), 54 + 2 * 8},
        {"the largest picture", Header{.width = 32767, .height = 32767}.Text(), 54 + 98'304ULL * 32767},
        {"the oldest kind of header", OldHeader(26, 24), 26 + 2 * 12},
    };
    for (const auto& [kind, header, size] : cases) {
        EXPECT_TRUE(IsWholeBitmap(header, size)) << kind;
        EXPECT_FALSE(IsWholeBitmap(header, size - 1)) << kind;
    }
    EXPECT_FALSE(IsWholeBitmap(Header{}.Text(), 53)) << "the pixels would start after the end of the file";
}

TEST(IsWholeBitmap, OldHeaderHasAPaletteOfThreeBytesPerColour) {
    EXPECT_TRUE(IsWholeBitmap(OldHeader(26 + 2 * 3, 1), largeSize));
    EXPECT_FALSE(IsWholeBitmap(OldHeader(26 + 2 * 3 - 1, 1), largeSize));
}

TEST(IsWholeBitmap, RefusesAWrongHeader) {
    struct {
        const char* fault;
        Header header;
    } const cases[] = {
        {"no width", {.width = 0}},
        {"wider than any screen", {.width = 32768}},
        {"no height", {.height = 0}},
        {"higher than any screen", {.height = 32768}},
        {"the most negative height", {.height = 0x80000000}},
        {"pixels that start inside the header", {.pixelOffset = 53}},
        {"pixels that start inside the palette", {.pixelOffset = 54 + 7, .bits = 1}},
        {"header of unknown size", {.headerBytes = 13}},
        {"header that is longer than the space before the pixels", {.headerBytes = 0xFFFFFFF8}},
        {"unknown number of bits", {.bits = 15}},
        {"unknown compression", {.compression = 4, .compressedBytes = 8}},
        {"more colours than the bits can number", {.pixelOffset = 2000, .bits = 4, .colours = 17}},
        {"more colours than any palette has", {.pixelOffset = 2000, .colours = 257}},
        {"bit fields of 8-bit pixels", {.pixelOffset = 2000, .bits = 8, .compression = bitFields}},
        {"8-bit compression of 24-bit pixels", {.compression = runLength8, .compressedBytes = 8}},
        {"compressed pixels of no bytes", {.pixelOffset = 2000, .bits = 8, .compression = runLength8}},
    };
    for (const auto& [fault, header] : cases)
        EXPECT_FALSE(IsWholeBitmap(header.Text(), largeSize)) << fault;
}

TEST(IsWholeBitmap, RefusesAnIncompleteOrForeignHeader) {
    EXPECT_FALSE(IsWholeBitmap("", largeSize));
    EXPECT_FALSE(IsWholeBitmap(OldHeader(26, 24).substr(0, 25), largeSize));
    EXPECT_FALSE(IsWholeBitmap(Header{}.Text().substr(0, 53), largeSize));
    EXPECT_FALSE(IsWholeBitmap("PK" + Header{}.Text().substr(2), largeSize)) << "a file of another format";
}

} // namespace
} // namespace obrin
