// A finding of the checker, and the words in which it is reported.
#pragma once

#include "common/Text.h"

#include <string>
#include <string_view>
#include <vector>

namespace obrin {

/// What the menu does because of a finding.
enum class Effect {
    None,            ///< it works, and the finding says what is odd about it
    EndsEveryStart,  ///< ends with an error
    EndsShownSystem, ///< ends with an error when it shows the system of the menu file
    EndsProgramRun,  ///< ends with an error when an operator runs a program
    EndsProperties,  ///< ends with an error in the Properties dialog of a program
    WaitsForEver,    ///< starts, and never shows its window
    FailsForOthers,  ///< one of the above, for another user or on another workstation
};

struct Place {
    std::string file; ///< or folder, or variable
    int line = 0;     ///< 0 for the file as a whole
};

struct Trouble {
    std::string problem;
    std::string remedy;
};

struct Finding {
    Effect effect;
    Place place;
    Trouble trouble;
    std::string consequence; ///< the effect's own words when empty
};

using Findings = std::vector<Finding>;

void Add(Findings& findings, Effect effect, Place place, Trouble trouble, std::string consequence = {});

/// The dialog opens for one program at a time: alone, what ends it is a warning.
bool IsError(const Finding& finding);
bool HasErrors(const Findings& findings);

/// In the order of files and lines: "FILE:LINE: error: PROBLEM: CONSEQUENCE; REMEDY". Each is one line.
std::string Report(Findings findings);

/// "2 errors, 1 warning in 5 menu files (DETAILS)".
std::string Summary(const Findings& findings, std::size_t menuFiles, std::string_view details);

/// With "?" in the place of control characters, so that it is one line and moves no cursor.
std::string OneLine(std::string text);

/// A quotation from a file, of 200 characters at most.
std::string Quoted(std::string_view text, LeadByteTest isLeadByte);

} // namespace obrin
