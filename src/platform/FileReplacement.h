// New contents for a file that other workstations and programs use at the same moment.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace obrin {

/// Gives a file new contents; its rights and attributes stay. They are written to a temporary file beside it,
/// which then takes its place: the file has the old or the new contents at any moment. Where that is refused,
/// because others have the file open or its users may write but not delete, it is written in place, with the
/// temporary file beside it until it is safely on disk. A file that has these contents already is left alone.
/// `current` are its contents for callers who have just read them.
///
/// Throws RunTimeError with the file as it was; or, when a write in place fails half-way, with a text that
/// names the temporary file, which stays.
void ReplaceFileBytes(const std::string& path, std::string_view bytes,
                      std::optional<std::string> current = std::nullopt);

} // namespace obrin
