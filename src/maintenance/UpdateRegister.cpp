#include "maintenance/UpdateRegister.h"

#include "common/Numbers.h"

namespace obrin {

std::string UpdateKey(int wsid) {
    // A damaged user record can contain a number with more than three digits.
    return PaddedDecimal(wsid, static_cast<int>(updateKeyBytes)).substr(0, updateKeyBytes);
}

UpdateSearch FindUpdateKey(std::string_view registerBytes, std::string_view key) {
    std::size_t record = 1;
    for (; registerBytes.size() >= updateKeyBytes; ++record) {
        if (registerBytes.substr(0, updateKeyBytes) == key)
            return {.updated = true, .record = record};
        registerBytes.remove_prefix(updateKeyBytes);
    }
    return {.updated = false, .record = record};
}

} // namespace obrin
