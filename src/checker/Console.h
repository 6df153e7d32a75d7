// The console of the checker.
#pragma once

#include "platform/WindowsApi.h"

#include <string_view>

namespace obrin {

/// Writes to a stream, STD_OUTPUT_HANDLE or STD_ERROR_HANDLE, and ignores errors. A console shows the
/// characters of the workstation's code page; a file or pipe gets the bytes.
void Write(DWORD stream, std::string_view text);

/// Shows on standard error how many menu files have been checked. Shows nothing during the first second, or
/// if standard error is not a console.
void ShowProgress(std::size_t done, std::size_t all);

/// Waits for a key if the console closes with this program, as it does after a double click.
void KeepOwnConsoleOpen();

} // namespace obrin
