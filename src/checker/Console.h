// The console of the checker.
#pragma once

#include "platform/WindowsApi.h"

#include <chrono>
#include <cstddef>
#include <string_view>

namespace obrin {

/// Standard output or standard error. A console shows the characters of the workstation's code page; a file
/// or pipe gets the bytes.
class Stream {
public:
    explicit Stream(DWORD which);

    bool IsConsole() const { return isConsole; }

    /// Does not tell whether the text arrives: there is nobody else to tell.
    void Write(std::string_view text) const;

private:
    HANDLE handle;
    bool isConsole;
};

/// A line that is written over, for somebody who waits at a console for more than a second.
class ProgressLine {
public:
    ProgressLine() = default;
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;
    ~ProgressLine();

    void Show(std::size_t done, std::size_t all);

private:
    using Clock = std::chrono::steady_clock;

    Stream console{STD_ERROR_HANDLE};
    Clock::time_point due = Clock::now() + std::chrono::seconds(1);
    bool shown = false;
};

/// Waits for a key when the console closes with this program, as it does after a double click.
void KeepOwnConsoleOpen(const Stream& output);

} // namespace obrin
