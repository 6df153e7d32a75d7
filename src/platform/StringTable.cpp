#include "platform/StringTable.h"

#include "platform/Failure.h"

#include <array>

namespace obrin {

std::string StringOfTable(int id) {
    std::array<char, 256> text;
    const int length = LoadStringA(Instance(), static_cast<UINT>(id), text.data(), text.size());
    if (length == 0)
        ThrowLastError("Reading string " + std::to_string(id) + " of the program");
    return {text.data(), static_cast<std::size_t>(length)};
}

} // namespace obrin
