// A finding of the checker, and the words in which it is reported.
#pragma once

#include "common/Text.h"

#include <string>
#include <string_view>
#include <vector>

namespace obrin {

/// What the menu does because of a finding.
enum class Effect {
    None,            ///< it works, but something is odd
    EndsEveryStart,  ///< it ends with an error at every start
    EndsShownSystem, ///< it ends with an error when it shows the system of the menu file
    EndsProgramRun,  ///< it ends with an error when an operator runs a program
    EndsProperties,  ///< it ends with an error in the Properties dialog of a program
    WaitsForEver,    ///< it never shows its window
    FailsForOthers,  ///< one of the others, but for another user or on another workstation
};

struct Place {
    std::string file; ///< or a folder or a variable
    int line = 0;     ///< counted from 1; 0 for the file as a whole
};

struct Trouble {
    std::string problem;
    std::string remedy;
};

/// Returns the trouble of a variable whose folder cannot be used. `folderTrouble` says why not.
Trouble MakeVariableTrouble(const std::string& value, const Trouble& folderTrouble);

struct Finding {
    Effect effect;
    Place place;
    Trouble trouble;
    std::string consequence; ///< if empty, the report describes the effect; None and FailsForOthers need one
};

using Findings = std::vector<Finding>;

void Add(Findings& findings, Effect effect, Place place, Trouble trouble, std::string consequence = {});
void Add(Findings& findings, Findings more);

/// Returns whether a finding is an error, and not a warning: it stops more than the Properties dialog.
bool IsError(const Finding& finding);
bool HasErrors(const Findings& findings);

/// Returns the lines "FILE:LINE: error: PROBLEM: CONSEQUENCE; REMEDY", sorted by file and line.
std::string Report(Findings findings);

/// Returns the line "2 errors, 1 warning in 5 menu files (DETAILS)".
std::string Summary(const Findings& findings, std::size_t menuFiles, std::string_view details);

/// Replaces control characters by "?", so that the text stays on one line and cannot move the cursor.
std::string ReplaceControlCharacters(std::string text);

/// Shortens a quotation from a file to 200 characters and "...".
std::string Shorten(std::string_view text, LeadByteTest isLeadByte);

} // namespace obrin
