// What the fuzz targets share: the input as text, the made-up code page, and a check that ends the run.
#pragma once

#include "support/CodePage.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

using obrin::test::IsLeadByte;
using obrin::test::UpperCase;

inline std::string_view Text(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

inline void Require(bool holds) {
    if (!holds)
        std::abort();
}
