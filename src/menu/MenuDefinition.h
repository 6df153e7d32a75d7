// A menu definition file as values: its title and the entries of its tree.
#pragma once

#include "common/Text.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace obrin {

/// One node of the tree. Its tree index is its position in the file, counted from 1.
struct MenuEntry {
    std::string text;
    std::string key;         ///< host program path; empty for headings
    std::int16_t parent = 0; ///< tree index of the heading above it; 0 at top level
};

struct MenuDefinition {
    std::string title; ///< blanks at its ends kept
    std::vector<MenuEntry> entries;
};

/// Whether a file of this name is a menu definition: something in front of ".mnu" in lower case.
bool IsMenuFileName(std::string_view name);

/// The system's title in the header line, with its blanks.
std::string_view HeaderTitle(std::string_view headerLine, LeadByteTest isLeadByte);

/// The two characters by which host and help pages know a system.
std::string_view SystemCode(std::string_view menuFileName, LeadByteTest isLeadByte);

/// Throws RunTimeError, naming file and line, for a file without a header line, an entry without a heading
/// above it, a key that the file has twice or that is a number, and the 32,768th entry. Nothing is repaired:
/// a tree that differs from its file would start the wrong programs.
MenuDefinition ParseMenuDefinition(std::string_view file, std::string_view fileName, LeadByteTest isLeadByte);

} // namespace obrin
