#include "Installation.h"

#include "Clock.h"

#include "platform/File.h"
#include "platform/Workstation.h"
#include "startup/HostLink.h"
#include "startup/UserRecords.h"

#include <psapi.h>
#include <tlhelp32.h>

#include <filesystem>
#include <stdexcept>
#include <system_error>

namespace obrin::bench {

namespace {

[[noreturn]] void ThrowLastError(const std::string& action) {
    throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), action);
}

// In milliseconds.
double ThreadCpuTime(DWORD id) {
    const UniqueHandle thread(OpenThread(THREAD_QUERY_INFORMATION, FALSE, id));
    FILETIME created;
    FILETIME ended;
    FILETIME kernel;
    FILETIME user;
    if (!thread || !GetThreadTimes(thread.get(), &created, &ended, &kernel, &user))
        ThrowLastError("reading the CPU time of a thread");
    const auto value = [](const FILETIME& time) {
        return static_cast<double>(ULARGE_INTEGER{{time.dwLowDateTime, time.dwHighDateTime}}.QuadPart);
    };
    constexpr double perMillisecond = 1e4;
    return (value(kernel) + value(user)) / perMillisecond;
}

void WaitForEnd(const UniqueHandle& process) {
    WaitFor("the end of a process", [&] { return WaitForSingleObject(process.get(), 0) == WAIT_OBJECT_0; });
}

} // namespace

void WaitFor(const std::string& what, const std::function<bool()>& condition) {
    constexpr double timeLimit = 30'000; // milliseconds
    for (const LONGLONG start = Now(); !condition(); Sleep(1)) {
        if (Milliseconds(Now() - start) > timeLimit)
            throw std::runtime_error(what + " did not come within 30 seconds");
    }
}

// --- Installation ---

std::vector<Entry> MakeEntries(int count) {
    constexpr int headings = 10;
    constexpr int programs = 9;
    std::vector<Entry> entries;
    for (int i = 0; i < count; ++i) {
        const int indexInBranch = i % (1 + headings * (1 + programs));
        const int indexInHeading = (indexInBranch - 1) % (1 + programs);
        const std::string number = std::to_string(i);
        if (indexInBranch == 0)
            entries.push_back({.depth = 0, .parent = 0, .text = "Branch " + number});
        else if (indexInHeading == 0)
            entries.push_back({.depth = 1, .parent = i - indexInBranch, .text = "Heading " + number});
        else
            entries.push_back({.depth = 2, .parent = i - indexInHeading, .text = "Program number " + number});
    }
    return entries;
}

std::string MenuFileText(const char* title, const std::vector<Entry>& entries) {
    std::string text = std::string(title) + "^\r\n";
    for (std::size_t i = 0; i < entries.size(); ++i) {
        text += std::string(static_cast<std::size_t>(entries[i].depth), '>') + entries[i].text;
        if (entries[i].depth == 2)
            text += "^UB\\Programs\\Prog" + std::to_string(i);
        text += "\r\n";
    }
    return text;
}

Installation::Installation(const char* host) {
    const std::vector<Entry> entries = MakeEntries(66);
    CreateDirectoryA("Core", nullptr);
    WriteFileBytes("FennConfig.Sys",
                   "Title Bench\r\nDrive S,C:\\OLD,X,\\\r\n\r\nBuffers 64\r\nFiles 120\r\n");
    WriteFileBytes("UserWSID.sys", UserWsidRecord(LoginName(), 5));
    WriteFileBytes("Startup.bmp", test::Bmp(200, 140));
    WriteFileBytes("GL.mnu", MenuFileText("General Ledger", entries));
    WriteFileBytes("PR.mnu", MenuFileText("Payroll", entries));
    WriteFileBytes("UB.mnu", MenuFileText("Utility Billing", entries));
    for (const char* program : {"ObrinMenu.exe", "Corvel.dll", "bare.exe"})
        std::filesystem::copy_file(OwnFolder() + program, program);
    std::filesystem::copy_file(OwnFolder() + host, "Fenn.exe");
    SetEnvironmentVariableA("FENN_CAPTION_DELAY_MS", "0"); // for the demonstration host
}

// --- RunningMenu ---

RunningMenu::RunningMenu(const MenuProgram& program)
    : windowClass(program.windowClass) {
    if (FindWindowA(hostWindowClass, nullptr) != nullptr)
        throw std::runtime_error("a host is already open: close it and start again");
    // The ".\" is necessary: for a bare name Windows searches this program's folder first.
    std::string commandLine = std::string(".\\") + program.commandLine;
    STARTUPINFOA start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION started{};
    if (!CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                        &started))
        ThrowLastError("starting " + commandLine);
    CloseHandle(started.hThread);
    process.reset(started.hProcess);
    processId = started.dwProcessId;
}

RunningMenu::~RunningMenu() {
    TerminateProcess(process.get(), 1); // does nothing if the process has ended
}

void RunningMenu::WaitUntilShown() const {
    WaitFor("the menu's window", [this] { return IsWindowVisible(Window()) != FALSE; });
}

// Adds up the threads, because Wine does not report the CPU time of another process.
double RunningMenu::CpuTime() const {
    const UniqueHandle threads(CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0));
    THREADENTRY32 thread{};
    thread.dwSize = sizeof thread;
    double time = 0;
    for (BOOL more = Thread32First(threads.get(), &thread); more;
         more = Thread32Next(threads.get(), &thread)) {
        if (thread.th32OwnerProcessID == processId)
            time += ThreadCpuTime(thread.th32ThreadID);
    }
    return time;
}

double RunningMenu::PeakMemory() const {
    WaitForInputIdle(process.get(), 2000);
    SendMessageA(Window(), WM_NULL, 0, 0);
    PROCESS_MEMORY_COUNTERS counters{};
    if (!K32GetProcessMemoryInfo(process.get(), &counters, sizeof counters))
        ThrowLastError("reading the memory of a process");
    return static_cast<double>(counters.PeakPagefileUsage) / (1024 * 1024);
}

void RunningMenu::Close() const {
    const HWND host = FindWindowA(hostWindowClass, nullptr);
    DWORD hostId = 0;
    GetWindowThreadProcessId(host, &hostId);
    const UniqueHandle hostProcess(OpenProcess(SYNCHRONIZE, FALSE, hostId));
    if (!hostProcess)
        ThrowLastError("opening the host's process");
    PostMessageA(Window(), WM_CLOSE, 0, 0);
    WaitForEnd(process);
    // The late host ignores the exit command, and a menu that still waits for its host sends none.
    PostMessageA(host, WM_CLOSE, 0, 0);
    WaitForEnd(hostProcess);
}

} // namespace obrin::bench
