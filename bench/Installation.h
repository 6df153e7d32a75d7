// A host installation in a scratch folder, and the menus that a measurement starts in it.
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
    int parent; ///< position of the heading above it; without meaning at top level
    std::string text;
};

/// The first entries of a tree whose branches hold ten headings each, with nine programs below each heading.
std::vector<Entry> MakeEntries(int count);

std::string MenuFileText(const char* title, const std::vector<Entry>& entries);

/// The current folder becomes an installation: three systems, a picture, and the workstation number 5 for the
/// user who runs this. `host`, a program beside this one, becomes its host.
class Installation {
public:
    explicit Installation(const char* host);

private:
    test::ScratchFolder folder;
};

constexpr const char* demoHost = "Fenn.exe";
constexpr const char* lateHost = "latehost.exe"; ///< sets its caption late and tells when: see LateHost.h

/// A program that shows a menu.
struct MenuProgram {
    const char* commandLine;
    const char* windowClass;
};

constexpr MenuProgram product{"ObrinMenu.exe", menuWindowClass};
constexpr MenuProgram bare{"bare.exe UB.mnu", "ObrinBench.Bare"};
constexpr MenuProgram bareWithAllCalls{"bare.exe UB.mnu all", "ObrinBench.Bare"};

/// A menu that runs in the current installation. Its process ends with this object at the latest.
class RunningMenu {
public:
    /// Starts the program. Throws an exception if a host is open: it is not ours to end.
    explicit RunningMenu(const MenuProgram& program);
    RunningMenu(const RunningMenu&) = delete;
    RunningMenu& operator=(const RunningMenu&) = delete;
    ~RunningMenu();

    void WaitUntilShown() const;
    /// CPU time of all threads that still run, in milliseconds.
    double CpuTime() const;
    /// The most private memory up to the end of the first painting, in MB.
    double PeakMemory() const;
    /// Closes the menu and its host, and waits until both processes have ended.
    void Close() const;

private:
    HWND Window() const { return FindWindowA(windowClass, nullptr); }

    const char* windowClass;
    UniqueHandle process;
    DWORD processId = 0;
};

/// Tries about every millisecond until `condition` holds. Throws after half a minute and names what it waited
/// for.
void WaitFor(const std::string& what, const std::function<bool()>& condition);

} // namespace obrin::bench
