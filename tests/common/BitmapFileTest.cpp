#include "common/BitmapFile.h"

#include <gtest/gtest.h>

#include <string>

namespace obrin {
namespace {

// Little-endian.
std::string Bytes(std::uint32_t number, std::size_t size) {
    std::string bytes;
    for (; size > 0; --size, number >>= 8)
        bytes += static_cast<char>(number & 0xFF);
    return bytes;
}

// The header of a picture without a palette, as it should be.
struct Header {
    std::uint32_t pixelsAt = 54, headerBytes = 40, width = 4, height = 2, bits = 24, compression = 0,
                  stored = 0, colours = 0;

    std::string Text() const {
        return "BM" + Bytes(0, 8) + Bytes(pixelsAt, 4) + Bytes(headerBytes, 4) + Bytes(width, 4) +
               Bytes(height, 4) + Bytes(1, 2) + Bytes(bits, 2) + Bytes(compression, 4) + Bytes(stored, 4) +
               Bytes(0, 8) + Bytes(colours, 4) + Bytes(0, 4);
    }
};

constexpr std::uint64_t wholeSize = 54 + 2 * 12; // two rows of four pixels of three bytes

TEST(BitmapFile, HoldsAsManyBytesAsItsHeaderSays) {
    EXPECT_TRUE(IsWholeBitmap(Header{}.Text(), wholeSize));
    EXPECT_TRUE(IsWholeBitmap(Header{.height = static_cast<std::uint32_t>(-2)}.Text(), wholeSize))
        << "upper row first";
    EXPECT_FALSE(IsWholeBitmap(Header{}.Text(), wholeSize - 1)) << "cut off";
}

TEST(BitmapFile, HeaderThatLiesIsRefused) {
    const std::pair<const char*, Header> cases[] = {
        {"more rows than bytes", {.height = 3}},
        {"wider than any screen", {.width = 0x7FFFFFFF}},
        {"rows beyond any number", {.height = 0x80000000}},
        {"no width", {.width = 0}},
        {"no height", {.height = 0}},
        {"pixels behind the end", {.pixelsAt = 78}},
        {"pixels in the header", {.pixelsAt = 20}},
        {"a header of no known size", {.headerBytes = 13}},
        {"a header longer than the file", {.headerBytes = 0xFFFFFFF0}},
        {"no such number of bits", {.bits = 7}},
        {"no such compression", {.compression = 4}},
        {"a palette that the file has no room for", {.bits = 8}},
        {"more colours than the bits tell apart", {.bits = 4, .colours = 17}},
        {"more packed bytes than the file has", {.bits = 8, .compression = 1, .stored = 100, .colours = 1}},
    };
    for (const auto& [name, header] : cases)
        EXPECT_FALSE(IsWholeBitmap(header.Text(), wholeSize)) << name;
}

TEST(BitmapFile, PaletteStandsBetweenHeaderAndPixels) {
    const Header header{.pixelsAt = 54 + 8, .bits = 1, .colours = 2};
    EXPECT_TRUE(IsWholeBitmap(header.Text(), 54 + 8 + 2 * 4)); // rows of whole 32-bit words
    EXPECT_FALSE(IsWholeBitmap(header.Text(), 54 + 8 + 4));
}

TEST(BitmapFile, OldHeaderHasShortSizes) {
    const std::string old = "BM" + Bytes(0, 8) + Bytes(26, 4) + Bytes(12, 4) + Bytes(4, 2) + Bytes(2, 2) +
                            Bytes(1, 2) + Bytes(24, 2);
    EXPECT_TRUE(IsWholeBitmap(old + std::string(24, 'x'), 26 + 24));
    EXPECT_FALSE(IsWholeBitmap(old + std::string(23, 'x'), 26 + 23));
}

TEST(BitmapFile, OtherFilesAreNone) {
    EXPECT_FALSE(IsWholeBitmap("", 0));
    EXPECT_FALSE(IsWholeBitmap("BM", 2));
    EXPECT_FALSE(IsWholeBitmap("PK" + Header{}.Text().substr(2), wholeSize));
}

} // namespace
} // namespace obrin
