// Replaces the contents of a file that other workstations and programs may use at the same time.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace obrin {

/// Replaces the contents of a file and keeps its rights and attributes. Writes a temporary file and replaces
/// the old file by it: readers see either the old or the new contents. Falls back to writing in place if
/// another program has the file open or the user has no right to delete it. Writes nothing if the file has
/// these contents already. `current` is the contents of the file, if the caller has just read it.
///
/// Throws RunTimeError. The file is then unchanged, unless a write in place failed half-way. In that case the
/// error text names the temporary file, if there is one, because it holds the complete new contents.
void ReplaceFileBytes(const std::string& path, std::string_view bytes,
                      std::optional<std::string> current = std::nullopt);

} // namespace obrin
