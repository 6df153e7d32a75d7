// The program's string table.
#pragma once

#include <string>

namespace obrin {

/// The text of an id. Throws RunTimeError when the table has none.
std::string StringOfTable(int id);

} // namespace obrin
