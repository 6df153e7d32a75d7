// Creates a host installation in a scratch folder and runs menus in it.
#pragma once

#include "menu/frmMain.h"
#include "platform/Handle.h"
#include "support/ScratchFolder.h"

#include <functional>
#include <string>
#include <vector>

namespace obrin::bench {

struct Entry {
    int depth;  ///< 0 at top level
    int parent; ///< index of the heading above it; not used at top level
    std::string text;
};

/// Returns the first `count` entries of a tree. Each branch has ten headings with nine programs each.
std::vector<Entry> MakeEntries(int count);

std::string MenuFileText(const char* title, const std::vector<Entry>& entries);

/// An installation in a new current folder: three systems, a picture and workstation number 5 for this user.
/// `host` names a program in the folder of bench.exe; the installation gets it as Fenn.exe.
class Installation {
public:
    explicit Installation(const char* host);

private:
    test::ScratchFolder folder;
};

constexpr const char* demoHost = "Fenn.exe";
constexpr const char* lateHost = "latehost.exe"; ///< sets its caption late: see LateHost.h

/// A program that shows a menu.
struct MenuProgram {
    const char* commandLine;
    const char* windowClass;
};

constexpr MenuProgram obrinMenu{"ObrinMenu.exe", menuWindowClass};
constexpr MenuProgram bareMenu{"bare.exe UB.mnu", "ObrinBench.Bare"}; ///< see Bare.cpp
constexpr MenuProgram bareMenuWithAllCalls{"bare.exe UB.mnu all", "ObrinBench.Bare"};

/// A menu that runs in the current installation. The destructor ends its process.
class RunningMenu {
public:
    /// Starts the program. Throws an exception if a host is already open.
    explicit RunningMenu(const MenuProgram& program);
    RunningMenu(const RunningMenu&) = delete;
    RunningMenu& operator=(const RunningMenu&) = delete;
    ~RunningMenu();

    void WaitUntilShown() const;
    /// Returns the CPU time of the menu's running threads in milliseconds.
    double CpuTime() const;
    /// Waits until the window is painted and returns the peak private memory in MB.
    double PeakMemory() const;
    /// Closes the menu and its host and waits until both processes have ended.
    void Close() const;

private:
    HWND Window() const { return FindWindowA(windowClass, nullptr); }

    const char* windowClass;
    UniqueHandle process;
    DWORD processId = 0;
};

/// Tests a condition about every millisecond until it is true. Throws an error with `what` after 30 seconds.
void WaitFor(const std::string& what, const std::function<bool()>& condition);

} // namespace obrin::bench
