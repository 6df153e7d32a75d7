// What the checker has to say, and the words it says it in.
#pragma once

#include "common/Text.h"

#include <string>
#include <string_view>
#include <vector>

namespace obrin {

struct Finding {
    enum class Kind {
        Error,   ///< ends the menu, at some workstation at least
        Warning, ///< does not, but is hardly what was meant
    };

    Kind kind;
    int line;         ///< 0 for what is about a file as a whole
    std::string text; ///< what is wrong: what comes of it; what to do
    std::string file = {};
};

/// In the order of files and lines, as "FILE:LINE: error: TEXT" or "FILE: error: TEXT", a line each.
std::string Report(std::vector<Finding> findings);

/// "2 errors, 1 warning in 5 menu files".
std::string Summary(const std::vector<Finding>& findings, std::size_t menuFiles);

bool HasErrors(const std::vector<Finding>& findings);

/// A text out of a file as it can stand in one line of output: control characters replaced, a long one cut.
std::string Shown(std::string_view text, LeadByteTest isLeadByte);

} // namespace obrin
