// Compiled for speed (see CMakeLists.txt), so that each block below becomes a few vector instructions.

#include "common/Bytes.h"

namespace obrin {

namespace {

// Over the blocks in which no byte passes the test.
template <std::size_t block, class Test>
std::size_t SkipBlocks(std::string_view text, std::size_t place, Test test) {
    const char* bytes = text.data();
    for (; place + block <= text.size(); place += block) {
        signed char found = 0; // without a branch for each byte; a comparison of vectors yields 0 or -1
        for (std::size_t i = 0; i < block; ++i)
            found = static_cast<signed char>(found | -static_cast<signed char>(test(bytes[place + i])));
        if (found != 0)
            break;
    }
    return place;
}

template <class Test>
std::size_t Find(std::string_view text, std::size_t start, Test test) {
    std::size_t place = SkipBlocks<32>(text, SkipBlocks<128>(text, start, test), test);
    while (place < text.size() && !test(text.data()[place]))
        ++place;
    return place < text.size() ? place : std::string_view::npos;
}

} // namespace

std::size_t FindByte(std::string_view text, char wanted, std::size_t start) {
    return Find(text, start, [=](char byte) { return byte == wanted; });
}

std::size_t FindUnusualByte(std::string_view text, char wanted, std::size_t start) {
    // As a signed number, a byte beyond ASCII is below zero. No "||": it would be a branch.
    return Find(text, start,
                [=](char byte) { return (static_cast<signed char>(byte) < ' ') | (byte == wanted); });
}

} // namespace obrin
