#include "Program.h"

#include "menu/frmMain.h"
#include "platform/Failure.h"
#include "startup/HostLink.h"

#include <psapi.h>
#include <tlhelp32.h>

#include <array>
#include <stdexcept>

namespace obrin::bench {

namespace {

LONGLONG Value(const FILETIME& time) {
    return static_cast<LONGLONG>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
}

double ThreadTime(DWORD id) {
    const UniqueHandle thread(OpenThread(THREAD_QUERY_INFORMATION, FALSE, id));
    FILETIME created;
    FILETIME ended;
    FILETIME kernel;
    FILETIME user;
    if (!thread || !GetThreadTimes(thread.get(), &created, &ended, &kernel, &user))
        ThrowLastError("Reading a thread's time");
    constexpr double perSecond = 1e7;
    return static_cast<double>(Value(kernel) + Value(user)) / perSecond;
}

} // namespace

void GiveUpWaiting(const char* what) {
    throw std::runtime_error(std::string("waited in vain for ") + what);
}

Program::Program(const std::string& commandLine) {
    std::string editable = ".\\" + commandLine;
    STARTUPINFOA start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION started{};
    if (!CreateProcessA(nullptr, editable.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                        &started))
        ThrowLastError("Starting " + commandLine);
    CloseHandle(started.hThread);
    process.reset(started.hProcess);
    id = started.dwProcessId;
}

Program::~Program() {
    if (WaitForSingleObject(process.get(), 0) != WAIT_OBJECT_0)
        TerminateProcess(process.get(), 1);
}

void Program::AwaitEnd() const {
    AwaitProcessEnd(process.get());
}

// Thread by thread: Wine tells the time of another process's threads, but not of the process.
double Program::CpuTime() const {
    const UniqueHandle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0));
    THREADENTRY32 thread{};
    thread.dwSize = sizeof thread;
    double seconds = 0;
    for (BOOL more = Thread32First(snapshot.get(), &thread); more;
         more = Thread32Next(snapshot.get(), &thread)) {
        if (thread.th32OwnerProcessID == id)
            seconds += ThreadTime(thread.th32ThreadID);
    }
    return seconds;
}

double Program::PeakMemory() const {
    PROCESS_MEMORY_COUNTERS counters{};
    if (!K32GetProcessMemoryInfo(process.get(), &counters, sizeof counters))
        ThrowLastError("Reading the memory of a process");
    return static_cast<double>(counters.PeakPagefileUsage);
}

HWND AwaitShown(const char* windowClass) {
    HWND window = nullptr;
    Await("a started program's window", [&] {
        window = FindWindowA(windowClass, nullptr);
        return window != nullptr && IsWindowVisible(window);
    });
    return window;
}

void EndHost(HWND host) {
    const UniqueHandle process = ProcessOf(host);
    PostMessageA(host, WM_CLOSE, 0, 0);
    AwaitProcessEnd(process.get());
}

void AwaitProcessEnd(HANDLE process) {
    Await("the end of a process", [=] { return WaitForSingleObject(process, 0) == WAIT_OBJECT_0; });
}

UniqueHandle ProcessOf(HWND window) {
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    UniqueHandle process(OpenProcess(SYNCHRONIZE, FALSE, id));
    if (!process)
        ThrowLastError("Opening a window's process");
    return process;
}

void RefuseOpenHost() {
    if (FindWindowA(hostWindowClass, nullptr) != nullptr || FindWindowA(nullptr, menuCaption) != nullptr)
        throw std::runtime_error("a host or a menu is open on this desktop");
}

} // namespace obrin::bench
