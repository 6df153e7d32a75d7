// Facts about the workstation: its code page, its Windows user, its folders and environment variables.
#pragma once

#include "common/Text.h"

#include <string>

namespace obrin {

/// Converts a text to upper case by the workstation's ANSI code page.
std::string UpperCase(std::string text);

/// Returns the test for the first byte of a two-byte character, or null if the ANSI code page has none.
LeadByteTest CodePageLeadByteTest();

/// Returns the name of the Windows user, at most 99 bytes; empty if Windows does not return it.
std::string LoginName();

/// Returns the path of the running program.
std::string OwnFile();

/// Returns the folder of the running program, ending with a backslash.
std::string OwnFolder();

/// Returns the value of an environment variable; empty if it is not set.
std::string EnvironmentVariable(const char* name);

} // namespace obrin
