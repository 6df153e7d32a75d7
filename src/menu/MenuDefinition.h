// A menu definition file as values: its title and the entries of its tree.
#pragma once

#include "common/Lines.h"
#include "common/RunTimeError.h"
#include "common/Text.h"

#include <cstddef>
#include <cstdint>
#include <forward_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace obrin {

/// One node of the tree. Its tree index is its position in the file, counted from 1. Its text and key are its
/// definition's.
struct MenuEntry {
    std::string_view text;
    std::string_view key;    ///< host program path; empty for headings
    std::int16_t parent = 0; ///< tree index of the heading above it; 0 at top level
};

struct MenuDefinition {
    std::string title; ///< blanks at its ends kept
    std::vector<MenuEntry> entries;
    std::unique_ptr<const std::string> file; ///< in which the texts are: copies would take most of the time
    std::forward_list<std::string> unmarked; ///< texts that the file has with depth marks in them
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
MenuDefinition ParseMenuDefinition(std::string file, std::string_view fileName, LeadByteTest isLeadByte);

/// What is wrong with a line of a menu file: the reason for which it is refused.
struct MenuFault {
    enum class Kind { NoHeader, NoHeading, NumberAsKey, KeyTwice, TooManyEntries };

    Kind kind;
    std::string reason;
    int line;          ///< counted from 1
    int firstLine = 0; ///< of a key that comes twice: where it came first
};

/// An entry on its way out of the parser. The texts last until the next one.
struct MenuLine {
    int line;
    std::size_t depth; ///< 0 at top level
    bool isProgram;
    std::string_view text; ///< of a program with the depth marks within, which its node goes without
    std::string_view key;  ///< without these
    bool keyIsCopy;        ///< and not a part of the line
    std::string_view wholeLine;
    bool isPlain; ///< the whole line holds printable ASCII only
    std::int16_t parent;
};

std::string WithoutDepthMarks(std::string_view text);

/// Takes what a menu file holds, in the order of the file.
class MenuSink {
public:
    MenuSink() = default;
    MenuSink(const MenuSink&) = delete;
    MenuSink& operator=(const MenuSink&) = delete;
    virtual ~MenuSink() = default;

    virtual void TakeHeader(std::string_view line) = 0;
    virtual void TakeEntry(const MenuLine& entry) = 0;
    /// The parse goes on when this returns: an entry without a heading counts as one of the top level, a
    /// faulty key as any other. Only behind the last entry that can be counted, it ends.
    virtual void TakeFault(const MenuFault& fault) = 0;
};

/// The one parser of menu files. The second form never holds a whole file.
void ReadMenuDefinition(std::string_view file, LeadByteTest isLeadByte, MenuSink& sink);
void ReadMenuDefinition(MoreText file, LeadByteTest isLeadByte, MenuSink& sink);

} // namespace obrin
