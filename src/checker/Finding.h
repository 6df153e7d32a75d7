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
    EndsEveryStart,  ///< it ends with an error
    EndsShownSystem, ///< it ends with an error when it shows the system of the menu file
    EndsProgramRun,  ///< it ends with an error when an operator runs a program
    EndsProperties,  ///< it ends with an error in the Properties dialog of a program
    WaitsForEver,    ///< it starts and never shows its window
    FailsForOthers,  ///< one of these, for another user or on another workstation
};

struct Place {
    std::string file; ///< or a folder or a variable
    int line = 0;     ///< counted from 1; 0 for the file as a whole
};

struct Trouble {
    std::string problem;
    std::string remedy;
};

/// Returns the trouble of a variable that leads to a folder with a trouble.
Trouble VariableTrouble(const std::string& value, const Trouble& ofFolder);

struct Finding {
    Effect effect;
    Place place;
    Trouble trouble;
    std::string consequence; ///< if empty, the report has words for the effect
};

using Findings = std::vector<Finding>;

void Add(Findings& findings, Effect effect, Place place, Trouble trouble, std::string consequence = {});
void Add(Findings& findings, Findings more);

/// Returns whether a finding stops more than the Properties dialog of some programs. Others are warnings.
bool IsError(const Finding& finding);
bool HasErrors(const Findings& findings);

/// Returns the lines "FILE:LINE: error: PROBLEM: CONSEQUENCE; REMEDY", sorted by file and line.
std::string Report(Findings findings);

/// Returns the line "2 errors, 1 warning in 5 menu files (DETAILS)".
std::string Summary(const Findings& findings, std::size_t menuFiles, std::string_view details);

/// Replaces control characters by "?", so that the text is one line and moves no cursor.
std::string OneLine(std::string text);

/// Shortens a quotation from a file to 200 characters and "...".
std::string Quoted(std::string_view text, LeadByteTest isLeadByte);

} // namespace obrin
