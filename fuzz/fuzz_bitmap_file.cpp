// Checks that any BMP header can be read, and that a picture that fits into a file fits into a longer one.
#include "Fuzz.h"

#include "common/BitmapFile.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto file = Text(data, size);
    if (obrin::IsWholeBitmap(file.substr(0, obrin::bitmapHeaderBytes), size))
        Require(obrin::IsWholeBitmap(file.substr(0, obrin::bitmapHeaderBytes), size + 1));
    return 0;
}
