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

/// Windows' own folder of libraries, that of 32-bit programs or of the workstation's own bits.
std::string SystemFolder(bool of32Bits);

/// The running program.
std::string OwnFile();

/// The folder of the running program, with a backslash at its end.
std::string OwnFolder();

/// The value of an environment variable; empty when it is not set.
std::string EnvironmentVariable(const char* name);

} // namespace obrin
