// New contents for a file that other workstations and programs use at the same moment.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace obrin {

/// Gives a file new contents without ever being without the old or the new ones: they are complete on disk,
/// under a name beside it, before they take the file's place, its rights and its attributes. Where that is
/// refused, because others have the file open or its users may write but not delete, it is written in place,
/// and what is beside it goes when the file is safely on disk. A file that has these contents already is left
/// alone. `present` are its contents for callers who have just read them.
///
/// Throws RunTimeError with the file as it was; or, when a write in place fails, with a text that names the
/// file beside it, which stays.
void ReplaceFileBytes(const std::string& path, std::string_view bytes,
                      std::optional<std::string> present = std::nullopt);

} // namespace obrin
