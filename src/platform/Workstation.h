// What the workstation says of itself: its code page's upper case, the Windows user, environment variables.
#pragma once

#include "common/Text.h"

#include <string>

namespace obrin {

/// Upper case by the workstation's ANSI code page.
std::string UpperCase(std::string text);

/// Tells the first bytes of double-byte characters in that code page; null when it has none.
LeadByteTest CodePageLeadByteTest();

/// The Windows user's name, of up to 99 bytes; empty when Windows does not tell it.
std::string LoginName();

/// The value of an environment variable; empty when it is not set.
std::string EnvironmentVariable(const char* name);

} // namespace obrin
