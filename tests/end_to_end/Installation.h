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
    /// Gives the current user this workstation number. 0 gives none, so that the menu asks for it.
    explicit Installation(int wsid);
    ~Installation() { EndHost(); }

    /// The lines of the stand-in host's log that begin with this word, without it.
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
    /// The texts of the controls of a visible window, one a line.
    std::string Texts(const std::string& caption = menuCaption) const;

    /// Presses a button of a visible window, and waits until the window has gone.
    void Press(const std::string& caption, int button) const;
    /// Posts a command to the menu window, as its menu bar and its button do.
    void Command(int id) const { PostMessageA(Window(), WM_COMMAND, static_cast<WPARAM>(id), 0); }
    void Close() const { PostMessageA(LoadingWindow(), WM_CLOSE, 0, 0); }
    /// Stops it from handling any message until it is resumed.
    void Suspend() const { SuspendThread(started.thread.get()); }
    void Resume() const { ResumeThread(started.thread.get()); }
    /// Waits for its end. STILL_ACTIVE if it does not end.
    int ExitCode() const;

private:
    // The whole path: without it, the program beside the tests would be started.
    const StartedProgram started = Start(std::filesystem::current_path() / "ObrinMenu.exe");
};

/// The value LastSystem in the registry.
void RememberSystem(const std::string& name);
void ExpectRemembered(const std::string& name);

} // namespace obrin::test
