// What is wrong or odd in a menu file, told from its name and contents.
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

/// Returns why Windows can have no settings file for a key, such as "holds the character *"; empty if it can.
std::string WhyNoFileName(std::string_view key, LeadByteTest isLeadByte);

/// Returns the title, and a line for each entry: its line number, its text as the tree shows it, and its key
/// in brackets.
std::string MenuTreeText(const MenuDefinition& definition, LeadByteTest isLeadByte);

/// Returns the line (the first is 1) of an entry (the first is 0).
constexpr int LineOfEntry(std::size_t index) {
    return static_cast<int>(index) + 2;
}

} // namespace obrin
