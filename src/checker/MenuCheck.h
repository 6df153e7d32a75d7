// What is wrong or odd in the contents of a menu file.
#pragma once

#include "checker/Finding.h"
#include "common/Text.h"

#include <string>
#include <string_view>
#include <vector>

namespace obrin {

/// The workstation's ANSI code page.
struct CodePage {
    LeadByteTest isLeadByte = nullptr;
    bool isUtf8 = false;
};

/// What else is wanted of a menu file beside its findings.
struct MenuWishes {
    bool keys = false;
    bool tree = false;
};

struct MenuCheck {
    std::vector<Finding> findings; ///< with an error when, and only when, the menu refuses the file
    std::vector<std::string> keys; ///< of its programs, when wished
    std::string tree;              ///< a line for the title and each entry, when wished
};

MenuCheck CheckMenuFile(std::string_view file, const CodePage& codePage, MenuWishes wishes);

} // namespace obrin
