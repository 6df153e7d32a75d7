// Finds what is wrong or odd in a menu file, by its name and contents.
#pragma once

#include "checker/Finding.h"
#include "common/Text.h"
#include "menu/MenuDefinition.h"

#include <string>
#include <string_view>

namespace obrin {

/// The workstation's ANSI code page.
struct CodePage {
    LeadByteTest isLeadByte = nullptr;
    bool isUtf8 = false;
};

/// Returns whether a file name ends with ".mnu" in any case. The menu lists only those in small letters.
bool IsMenuFileNameInAnyCase(std::string_view name);

/// Returns what is wrong or odd. There is an error if, and only if, the menu refuses the file.
Findings CheckMenuFile(const std::string& path, std::string_view bytes, const MenuDefinition& definition,
                       const CodePage& codePage);

/// Returns why a key cannot be the path of a settings file, such as "holds the character *"; empty if it can.
std::string FindFileNameFault(std::string_view key, LeadByteTest isLeadByte);

/// Returns the title, and a line for each entry: its line number, its text as the tree shows it, and its key
/// in brackets.
std::string FormatMenuTree(const MenuDefinition& definition, LeadByteTest isLeadByte);

/// Returns the line number of an entry. Line 1 is the header, so entry 0 is in line 2.
constexpr int LineOfEntry(std::size_t index) {
    return static_cast<int>(index) + 2;
}

} // namespace obrin
