// Parses a menu definition file into its title, the entries of its tree and its faults.
#pragma once

#include "common/Text.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace obrin {

/// One node of the tree. The entry in line 2 of the file has tree index 1, the next one 2, and so on.
struct MenuEntry {
    std::string text;
    std::string key; ///< host program path; empty for headings
    bool isProgram = false;
    std::size_t depth = 0;   ///< 0 at top level
    std::int16_t parent = 0; ///< tree index of the heading above it; 0 at top level
};

/// A fault in a menu file; the menu refuses to show such a file.
struct MenuFault {
    enum class Kind { NoHeader, NoHeading, NumberAsKey, KeyTwice, TooManyEntries };

    Kind kind;
    int line; ///< counted from 1
    std::string text;
    int firstLine = 0; ///< for KeyTwice, the line that used the key first
};

struct MenuDefinition {
    std::string title; ///< not trimmed
    std::vector<MenuEntry> entries;
    std::vector<MenuFault> faults; ///< sorted by line
};

/// Returns whether a file name ends with ".mnu" in lower case and has at least one character before that.
bool IsMenuFileName(std::string_view name);

/// Returns the system's title from the header line, not trimmed.
std::string_view HeaderTitle(std::string_view headerLine, LeadByteTest isLeadByte);

/// Returns the system code: the first two characters of the name of its menu file.
std::string_view SystemCode(std::string_view menuFileName, LeadByteTest isLeadByte);

/// Parses the text of a menu file. Reports faults and repairs none of them. Stops at TooManyEntries.
MenuDefinition ParseMenuDefinition(std::string_view file, LeadByteTest isLeadByte);

/// Throws RunTimeError for the first fault, if there is one: a wrong tree would start wrong programs.
void ThrowFirstFault(const MenuDefinition& definition, const std::string& fileName);

} // namespace obrin
