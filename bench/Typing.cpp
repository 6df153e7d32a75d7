// Compares typing a command into the host with sending the same key messages in a loop. Uses the late host:
// it ignores keys, so that the times do not contain the work of a host.

#include "Installation.h"
#include "Measurements.h"
#include "Table.h"

#include "startup/HostLink.h"

#include <string_view>

namespace obrin::bench {

void MeasureTyping() {
    constexpr int runs = 201;
    const Installation installation(lateHost);
    const RunningMenu menu(bareMenu); // starts the host
    menu.WaitUntilShown();
    const HWND host = FindWindowA(hostWindowClass, nullptr);

    HostLink link(host);
    const std::string command = "Load Core\\Programs\\CSBackup\rRun\r";
    // The same as key codes: "\xDC" is the key that carries the backslash.
    const std::string_view keys = "LOAD CORE\xDCPROGRAMS\xDC"
                                  "CSBACKUP\rRUN\r";
    const auto sendKeys = [&] {
        for (const char key : keys) {
            SendMessageA(host, WM_KEYDOWN, static_cast<unsigned char>(key), 0);
            SendMessageA(host, WM_KEYUP, static_cast<unsigned char>(key), 0);
        }
    };
    const auto count = static_cast<double>(keys.size());
    PrintRatio("typing a command, per key", "ms",
               MeasureAlternately(
                   runs, [&] { return MeasureTime([&] { link.SendHostCommand(command); }) / count; },
                   [&] { return MeasureTime(sendKeys) / count; }),
               1.05);
    menu.Close();
}

} // namespace obrin::bench
