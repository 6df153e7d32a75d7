// The format of "Updated.txt", the register of updated workstations: three-byte keys without separators.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace obrin {

constexpr std::size_t updateKeyBytes = 3;

/// Returns the key of a workstation: 5 is "005".
std::string UpdateKey(int wsid);

struct UpdateSearch {
    bool updated;       ///< whether the key is in the register
    std::size_t record; ///< number of the record with the key, or of the record to write; the first is 1
};

/// Looks for the key in the bytes of the register. If it is missing, `record` is the one behind the last
/// complete record, so that the caller overwrites an incomplete one.
UpdateSearch FindUpdateKey(std::string_view registerBytes, std::string_view key);

} // namespace obrin
