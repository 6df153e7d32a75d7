// Programs that a measurement starts: found by their windows, looked at from outside, ended politely.
#pragma once

#include "Clock.h"

#include "platform/Handle.h"

#include <string>

namespace obrin::bench {

/// Throws after half a minute, naming what was waited for.
[[noreturn]] void GiveUpWaiting(const char* what);

/// Tries about every millisecond until `condition` holds.
template <class Condition>
void Await(const char* what, Condition condition) {
    constexpr double longest = 30;
    for (const LONGLONG start = Now(); !condition(); Sleep(1)) {
        if (Seconds(Now() - start) > longest)
            GiveUpWaiting(what);
    }
}

/// A process that ends with this object at the latest.
class Program {
public:
    /// Starts a program of the current folder in it. Without the folder's name, the programs beside this one
    /// would be found first. Throws RunTimeError.
    explicit Program(const std::string& commandLine);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    ~Program();

    void AwaitEnd() const;
    /// Of all its threads that still run, in seconds.
    double CpuTime() const;
    /// The most private memory that it had at any time, in bytes.
    double PeakMemory() const;

private:
    UniqueHandle process;
    DWORD id = 0;
};

/// Waits until a window of this class can be seen, and returns it.
HWND AwaitShown(const char* windowClass);

/// Closes the host's window and waits until its process is gone: the next start would find it open.
void EndHost(HWND host);
/// Waits until the process of a window that is closing is gone.
void AwaitProcessEnd(HANDLE process);
/// The process that a window belongs to.
UniqueHandle ProcessOf(HWND window);

/// Throws when a host runs already: it is not ours, and nothing may be measured or ended beside it.
void RefuseOpenHost();

} // namespace obrin::bench
