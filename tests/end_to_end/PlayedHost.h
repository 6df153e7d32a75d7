// A host that the test plays itself, window by window: the stand-in host shows none.
#pragma once

#include "end_to_end/Installation.h"

#include <functional>
#include <string>

namespace obrin::test {

/// While an object lives, the stand-in host that the menu starts shows no window, and this thread's windows
/// are the host's. The thread must process messages, as Eventually does not: see Until.
class PlayedHost {
public:
    PlayedHost();
    PlayedHost(const PlayedHost&) = delete;
    PlayedHost& operator=(const PlayedHost&) = delete;
    ~PlayedHost();

    /// The station window of workstation 5, hidden and without a child.
    void MakeStation();
    /// Its command window, which takes the keys.
    void MakeCommandWindow();
    void ShowStation() const { ShowWindow(station, SW_SHOWNOACTIVATE); }
    bool IsStationShown() const { return IsWindowVisible(station) != FALSE; }

    /// Called once, at the next key-down, before the key is noted.
    std::function<void()> onNextKey;
    /// The keys typed so far.
    const std::string& Typed() const { return typed; }

    /// Processes messages until the condition holds; false when it never did.
    static bool Until(const std::function<bool()>& condition, DWORD milliseconds = 20'000);

private:
    static LRESULT CALLBACK CommandProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND station = nullptr;
    std::string typed;
};

} // namespace obrin::test
