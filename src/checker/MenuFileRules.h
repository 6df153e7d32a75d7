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

/// Whether somebody may take a file of this name for a menu file. The menu does when it ends in small
/// letters.
bool IsMenuFileNameInAnyCase(std::string_view name);

/// What is wrong, with an error when, and only when, the menu refuses the file.
Findings CheckMenuFile(const std::string& path, std::string_view bytes, const MenuDefinition& definition,
                       const CodePage& codePage);

/// Why no file of Windows can have the name that a program key leads to, such as "holds the character *";
/// empty when one can.
std::string WhyNoFileName(std::string_view key, LeadByteTest isLeadByte);

/// The title as the System List shows it, and behind the numbers of their lines the entries as the tree shows
/// them, with keys in brackets.
std::string MenuTreeText(const MenuDefinition& definition, LeadByteTest isLeadByte);

/// The line of an entry, counted from 1.
constexpr int LineOfEntry(std::size_t index) {
    return static_cast<int>(index) + 2;
}

} // namespace obrin
