// The menu definition files of the installation: one system each.
#pragma once

#include <string>
#include <vector>

namespace obrin {

struct MenuFile {
    std::string name;  ///< bare file name, as the folder listing gave it
    std::string title; ///< from the header line, with its blanks
};

/// The systems in the order of the folder listing. Throws RunTimeError for a file that cannot be read and for
/// the hundredth one: item 99 of the system list is its template.
std::vector<MenuFile> EnumerateMenuFiles();

} // namespace obrin
