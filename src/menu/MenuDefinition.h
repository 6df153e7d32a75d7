// A menu definition file as values: its title, the entries of its tree, and what is wrong with it.
#pragma once

#include "common/Text.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace obrin {

/// One node of the tree. Its tree index is its position among the entries, counted from 1; it stands in the
/// line behind that number.
struct MenuEntry {
    std::string text;
    std::string key; ///< host program path; empty for headings
    bool isProgram = false;
    std::size_t depth = 0;   ///< 0 at top level
    std::int16_t parent = 0; ///< tree index of the heading above it; 0 at top level
};

/// A reason for which the menu refuses a file.
struct MenuFault {
    enum class Kind { NoHeader, NoHeading, NumberAsKey, KeyTwice, TooManyEntries };

    Kind kind;
    int line; ///< counted from 1
    std::string text;
    int firstLine = 0; ///< of a key that comes twice: where it came first
};

struct MenuDefinition {
    std::string title; ///< blanks at its ends kept
    std::vector<MenuEntry> entries;
    std::vector<MenuFault> faults; ///< in the order of lines
};

/// Whether a file of this name is a menu definition: something in front of ".mnu" in lower case.
bool IsMenuFileName(std::string_view name);

/// The system's title in the header line, with its blanks.
std::string_view HeaderTitle(std::string_view headerLine, LeadByteTest isLeadByte);

/// The two characters by which host and help pages know a system.
std::string_view SystemCode(std::string_view menuFileName, LeadByteTest isLeadByte);

/// Reads the text of a menu file. Nothing is repaired: an entry without its heading is a fault, and so are a
/// key that comes twice or is a number, a missing header line and the 32,768th entry, behind which nothing is
/// read.
MenuDefinition ParseMenuDefinition(std::string_view file, LeadByteTest isLeadByte);

/// Throws RunTimeError with file, line and text of the first fault, if there is one: a tree that differs from
/// its file would start the wrong programs.
void ThrowFirstFault(const MenuDefinition& definition, const std::string& fileName);

} // namespace obrin
