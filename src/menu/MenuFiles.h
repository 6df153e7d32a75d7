// The menu definition files of the installation, one system each, and the System List made of them.
#pragma once

#include "platform/WindowsApi.h"

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

/// Makes the items mnuSystems(0), (1), ... of the first menu of a menu bar and removes their template.
/// Without any system the menu itself leaves the bar.
void FillSystemList(HMENU bar, const std::vector<MenuFile>& systems);

} // namespace obrin
