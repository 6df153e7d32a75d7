// Finds the menu definition files, one for each system, and fills the System List from them.
#pragma once

#include "platform/WindowsApi.h"

#include <string>
#include <vector>

namespace obrin {

struct MenuFile {
    std::string name;  ///< file name without a folder
    std::string title; ///< from the header line, not trimmed
};

/// Returns the menu files of the current directory in the order of the file system. Throws RunTimeError if
/// there are more than 99 files, or if a file cannot be read or is empty.
std::vector<MenuFile> EnumerateMenuFiles();

/// Adds an item for each system (ID_SYSTEMS, ID_SYSTEMS + 1, ...) to the first menu of a menu bar, and
/// removes the template item. Without systems, removes that menu from the bar.
void FillSystemList(HMENU bar, const std::vector<MenuFile>& systems);

} // namespace obrin
