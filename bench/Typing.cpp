// Typing a command into the host, against the same key messages sent by a bare loop. The window that takes
// them belongs to another process and does nothing, so that nothing hides what the launcher adds.

#include "Measurements.h"
#include "Program.h"
#include "Roles.h"
#include "Scratch.h"

#include "platform/Failure.h"
#include "platform/Workstation.h"
#include "startup/HostKeys.h"
#include "startup/HostLink.h"

namespace obrin::bench {

std::vector<Row> MeasureTyping() {
    constexpr int runs = 201;
    const std::string command = LoadAndRun("Core\\Programs\\CSBackup");
    const std::vector<std::uint8_t> keys = HostKeyCodes(command, UpperCase, CodePageLeadByteTest());

    const ScratchFolder folder;
    if (!CopyFileA(OwnFile().c_str(), "sink.exe", FALSE))
        ThrowLastError("Copying this program");
    const Program sink(std::string("sink.exe ") + keySinkRole);
    HWND window = nullptr;
    Await("the key sink's window",
          [&] { return (window = FindWindowA(nullptr, keySinkCaption)) != nullptr; });

    HostLink link(window);
    const auto perKey = [&](double seconds) { return seconds / static_cast<double>(keys.size()) * 1e6; };
    const Medians medians = Alternate(
        runs, [&] { return perKey(Timed([&] { link.SendHostCommand(command); })); },
        [&] {
            return perKey(Timed([&] {
                for (const std::uint8_t key : keys) {
                    SendMessageA(window, WM_KEYDOWN, key, 0);
                    SendMessageA(window, WM_KEYUP, key, 0);
                }
            }));
        });

    PostMessageA(window, WM_CLOSE, 0, 0);
    sink.AwaitEnd();
    return {WithinRatio("typing a command, per key", "us", medians, 1.05)};
}

} // namespace obrin::bench
