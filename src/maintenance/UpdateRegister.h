// The register of updated workstations, "Updated.txt": three-byte keys without separators, as values.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace obrin {

constexpr std::size_t updateKeyBytes = 3;

/// The key of a workstation, always three bytes: 5 is "005".
std::string UpdateKey(int wsid);

struct UpdateSearch {
    bool updated;       ///< the key is in the register
    std::size_t record; ///< counted from 1: the one that holds the key, or the one to write it as
};

/// Looks for the key in the register's bytes. A partial record at the end is read by nobody: a new key
/// overwrites it.
UpdateSearch FindUpdateKey(std::string_view registerBytes, std::string_view key);

} // namespace obrin
