#include "Fuzz.h"

#include "maintenance/UpdateRegister.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto before = Text(data, size);
    const auto found = obrin::FindUpdateKey(before, "042");
    const std::size_t place = (found.record - 1) * obrin::updateKeyBytes;
    Require(found.updated ? before.substr(place, 3) == "042" : place <= size && size < place + 3);

    std::string after(before.substr(0, place));
    after += "042";
    Require(obrin::FindUpdateKey(after, "042").updated);
    return 0;
}
