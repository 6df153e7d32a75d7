// A scratch installation of the host and the real launcher in it, driven from outside: by window messages,
// real keys and the real mouse. Everything waits with a deadline and nothing sleeps blindly.
#pragma once

#include "platform/WindowsApi.h"

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace obrin::test {

/// Polls until the condition holds; false when it never did.
bool Eventually(const std::function<bool()>& condition, std::chrono::seconds most = std::chrono::seconds(20));

/// The text of a window of another process, controls included.
std::string TextOf(HWND window);

/// A folder with FennConfig.Sys, Core, one menu file, the launcher, the support library and the stand-in
/// host. It is the current directory as long as the object lives, and goes with it. Registry and environment
/// are as new.
class Installation {
public:
    Installation();
    Installation(const Installation&) = delete;
    Installation& operator=(const Installation&) = delete;
    ~Installation();

    /// The current user gets this number without being asked.
    void KnowUser(int wsid) const;

    /// Lines of the stand-in host's log: "line LOAD CORE\STARTSYS", "down 76".
    std::vector<std::string> HostLog() const;
    /// Only the typed lines, without "line ".
    std::vector<std::string> TypedLines() const;
    /// Only the key messages: "down 76".
    std::vector<std::string> Keys() const;
    bool HostHasTyped(const std::string& lastLine) const;
    /// The process id of the host that the log names last; 0 without one.
    DWORD HostProcess() const;
    void EndHost() const;

    std::string folder;
};

/// A running launcher; ended with the object when it still runs.
class Launcher {
public:
    Launcher();
    Launcher(const Launcher&) = delete;
    Launcher& operator=(const Launcher&) = delete;
    ~Launcher();

    /// The shown window of this caption; 0 when there is none within the deadline.
    HWND Window(const std::string& caption) const;
    bool Shows(const std::string& caption) const;
    /// The menu window, shown or not.
    HWND HiddenMenu() const;
    HWND Menu() const { return Window("Obrin System Menu"); }
    HWND Tree() const;
    /// All texts of a shown window's controls, one a line.
    std::string Texts(const std::string& caption) const;

    /// Presses a button of a shown window.
    void Press(const std::string& caption, int button) const;
    /// Answers the question for a workstation number.
    void AnswerWsid(const std::string& answer) const;
    /// Exit code after its end; -1 when it does not end.
    int ExitCode() const;

private:
    HWND Find(const std::function<bool(HWND)>& wanted) const;

    PROCESS_INFORMATION process{};
};

/// A key of the real keyboard, down and up.
void Key(WORD key);
/// Real mouse clicks on a row of the tree's visible rows, counted from 0; `depth` is the node's.
void ClickRow(HWND tree, int row, int depth, DWORD downAndUp, int times = 1);

} // namespace obrin::test
