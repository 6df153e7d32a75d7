// What the fuzz targets share: the input as text, and a check that ends the run.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

inline std::string_view Text(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

// Of a made-up code page.
inline bool IsLeadByte(char byte) {
    return static_cast<unsigned char>(byte) >= 0x81 && static_cast<unsigned char>(byte) <= 0x9F;
}

inline void Require(bool holds) {
    if (!holds)
        std::abort();
}
