// A scratch installation of the host and the real menu in it, driven from outside: by window messages, real
// keys and the real mouse. Everything waits with a deadline.
#pragma once

#include "menu/frmMain.h"
#include "platform/Failure.h"
#include "platform/SupportLibrary.h"
#include "resources/Ids.h"
#include "startup/UserRecords.h"
#include "support/Eventually.h"
#include "support/Machine.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace obrin::test {

using Lines = std::vector<std::string>;

/// Waits until the window has stayed in front for a while. When another window closes, several may come to
/// the front in turn, and keys typed meanwhile are lost.
bool KeepsForeground(HWND window);

/// The text of a window or control, also of another process. Empty if that hangs.
std::string TextOf(HWND window);

/// A folder with FennConfig.Sys, Core, the menu file UB.mnu, the menu, the support library and the stand-in
/// host. It is the current directory while the object lives, and is removed with it. No system is remembered,
/// and the environment variables of menu and host are reset.
class Installation {
public:
    /// Gives the current user this workstation number, and records workstation 5 as updated. 0 does neither,
    /// so that the menu asks for a number.
    explicit Installation(int wsid);
    ~Installation() { EndHost(); }

    /// The lines of the stand-in host's log that begin with this word, without the word.
    Lines Logged(const std::string& word) const;
    /// Waits until the menu has started the stand-in host.
    bool StartsHost() const {
        return Eventually([this] { return !Logged("process").empty(); });
    }
    /// Waits until exactly these lines have been typed into the host.
    bool HostGets(const Lines& lines) const {
        return Eventually([&] { return Logged("line") == lines; });
    }
    /// Waits until this line is the last one typed into the host.
    bool HostGetsLast(const std::string& line) const;
    void EndHost() const;

private:
    ScratchFolder folder;
};

/// A menu that runs in the current directory. The destructor ends it if it still runs.
class RunningMenu {
public:
    RunningMenu() = default;
    RunningMenu(const RunningMenu&) = delete;
    RunningMenu& operator=(const RunningMenu&) = delete;
    ~RunningMenu();

    /// The visible window with this caption, or null.
    HWND Shown(const std::string& caption) const;
    /// Waits for that window.
    HWND Window(const std::string& caption = menuCaption) const;
    /// Waits for the menu window, which is hidden until a system is shown.
    HWND LoadingWindow() const;
    HWND Tree() const { return GetDlgItem(GetDlgItem(Window(), IDC_FRAME1), IDC_TREEVIEW1); }
    HWND Button() const { return GetDlgItem(GetParent(Tree()), IDC_COMMAND1); }
    /// Waits for a visible window and returns the texts of its controls, one a line.
    std::string Texts(const std::string& caption = menuCaption) const;

    /// Presses a button of a visible window, and waits until the window has gone.
    void Press(const std::string& caption, int button) const;
    /// Posts a command to the menu window, as its menu bar and its button do.
    void Command(int id) const { PostMessageA(Window(), WM_COMMAND, static_cast<WPARAM>(id), 0); }
    void Close() const { PostMessageA(LoadingWindow(), WM_CLOSE, 0, 0); }
    /// Stops the menu from handling any message until it is resumed.
    void Suspend() const { SuspendThread(started.thread.get()); }
    void Resume() const { ResumeThread(started.thread.get()); }
    /// Waits for the menu's end and returns its exit code; STILL_ACTIVE if it does not end.
    int ExitCode() const;

private:
    // The whole path: without it, Windows would start the program beside the tests.
    const StartedProgram started = Start(std::filesystem::current_path() / "ObrinMenu.exe");
};

/// Stores the value LastSystem in the registry.
void RememberSystem(const std::string& name);
/// Expects this value, or none if the user may not write it.
void ExpectRemembered(const std::string& name);

} // namespace obrin::test
