// A scratch installation of the host and the real launcher in it, driven from outside: by window messages,
// real keys and the real mouse. Everything waits with a deadline and nothing sleeps blindly.
#pragma once

#include "platform/Failure.h"
#include "platform/SupportLibrary.h"
#include "resources/Ids.h"
#include "startup/UserRecords.h"
#include "support/Machine.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <vector>

namespace obrin::test {

using Lines = std::vector<std::string>;

/// Polls until the condition holds; false when it never did.
bool Eventually(const std::function<bool()>& condition);

/// Waits until the window has kept the keyboard for a while: when another one closes, the display hands it to
/// and fro, and what is typed meanwhile is lost.
bool KeepsForeground(HWND window);

/// Moves the real pointer. The display may report late where it was before, which undoes the move.
void PointAt(POINT place);

/// The text of a window of another process, controls included.
std::string TextOf(HWND window);

/// A folder with FennConfig.Sys, Core, one menu file, the launcher, the support library and the stand-in
/// host. It is the current directory as long as the object lives, and goes with it. Registry and environment
/// are as new.
class Installation {
public:
    /// The current user gets this number without being asked; 0 for a user who is asked.
    explicit Installation(int wsid);
    ~Installation() { EndHost(); }

    /// What stands behind this word in the lines of the stand-in host's log that begin with it.
    Lines Logged(const std::string& word) const;
    /// Whether the host gets to type these lines and no others.
    bool HostTypes(const Lines& lines) const;
    bool HostTypesLast(const std::string& line) const;
    void EndHost() const;

private:
    ScratchFolder folder;
};

/// A running launcher; ended with the object when it still runs.
class Launcher {
public:
    ~Launcher();

    /// The shown window of this caption; 0 when there is none now, or within the deadline.
    HWND Shown(const std::string& caption) const;
    HWND Window(const std::string& caption) const;
    HWND Menu() const { return Window("Obrin System Menu"); }
    HWND Tree() const;
    /// The texts of a shown window's controls, one a line.
    std::string Texts(const std::string& caption) const;

    /// Presses a button of a shown window.
    void Press(const std::string& caption, int button) const;
    /// Sends a command or the like to the menu window.
    void Send(UINT message, WPARAM wParam) const { SendMessageA(Menu(), message, wParam, 0); }
    /// Stops it from handling anything, or lets it go on.
    void Hang(bool hang) const {
        hang ? SuspendThread(started.thread.get()) : ResumeThread(started.thread.get());
    }
    /// Exit code after its end; STILL_ACTIVE when it does not end.
    int ExitCode() const;

private:
    // The whole path: without it, the program beside the tests would be started.
    const Started started = Start(std::filesystem::current_path() / "ObrinMenu.exe");
};

} // namespace obrin::test
