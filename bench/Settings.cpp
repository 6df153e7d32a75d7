// Saving and loading a settings file, against bare calls that write and read the same bytes as safely; and
// opening the Properties dialog, against the same dialog and pages from the same resource with nothing behind
// them.

#include "Clock.h"
#include "Measurements.h"
#include "Scratch.h"

#include "controls/Dialog.h"
#include "platform/SupportLibrary.h"
#include "resources/Ids.h"
#include "settings/Form2.h"
#include "settings/SettingsStore.h"

#include <array>
#include <cstddef>

namespace obrin::bench {

namespace {

// The folders of SettingsPath("Core\\Programs\\CSBackup"), outermost first.
constexpr std::array folders{".\\Ini\\", ".\\Ini\\Core\\", ".\\Ini\\Core\\Programs\\"};
constexpr const char* key = "Core\\Programs\\CSBackup";

void LoadBare(const std::string& path) {
    std::array<char, 4096> bytes;
    DWORD count = 0;
    const HANDLE file =
        CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ReadFile(file, bytes.data(), bytes.size(), &count, nullptr);
    CloseHandle(file);
}

void SaveBare(const std::string& path, const std::string& bytes) {
    for (const char* folder : folders)
        GetFileAttributesA(folder);
    const DWORD attributes = GetFileAttributesA(path.c_str());
    LoadBare(path); // who does not look writes what is right already
    const std::string beside = path + ".tmp";
    const HANDLE file =
        CreateFileA(beside.c_str(), GENERIC_WRITE, FILE_SHARE_DELETE, nullptr, CREATE_NEW, 0, nullptr);
    DWORD count = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr);
    FlushFileBuffers(file);
    SetFileAttributesA(beside.c_str(), attributes);
    std::array<std::byte, 4096> rights;
    if (GetFileSecurityA(path.c_str(), DACL_SECURITY_INFORMATION, rights.data(), rights.size(), &count))
        SetFileSecurityA(beside.c_str(), DACL_SECURITY_INFORMATION, rights.data());
    MoveFileExA(beside.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    CloseHandle(file);
}

// Three pages over the tab strip, as the Properties dialog has them.
class BareDialog final : public Dialog {
    static INT_PTR CALLBACK PageProcedure(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

    INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM) override {
        if (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL)
            EndDialog(window, 0);
        for (int page = 2; message == WM_INITDIALOG && page >= 0; --page) {
            const HWND frame =
                CreateDialogParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_PAGE_GENERAL + page),
                                   window, PageProcedure, 0);
            SetWindowPos(frame, HWND_TOP, 20, 40, 500, 380, SWP_NOACTIVATE);
        }
        return message == WM_INITDIALOG;
    }
};

LONGLONG shown; // when the dialog at hand had nothing more to do

// A modal dialog tells its owner when its queue is empty for the first time: it is shown and painted.
LRESULT CALLBACK OwnerProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_ENTERIDLE || shown != 0)
        return DefWindowProcA(window, message, wParam, lParam);
    shown = Now();
    PostMessageA(reinterpret_cast<HWND>(lParam), WM_COMMAND, IDCANCEL, 0);
    return 0;
}

template <class Open>
double MillisecondsToShown(Open&& open) {
    shown = 0;
    const LONGLONG start = Now();
    open();
    return 1e3 * Seconds(shown - start);
}

} // namespace

std::vector<Row> MeasureSettings() {
    const ScratchFolder scratch;
    SetEnvironmentVariableA("TesselTemp", ".");
    const std::string path = SettingsPath(key);
    WriteDefaultSettings(path, key);
    SettingValues values;
    const LoadedSettings loaded = LoadSystemSettings(path);
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = *loaded[i];
    std::string bytes = FormatSettings(values);
    // Another value each time: what is right already is not saved again.
    const auto change = [](std::string& text) { text.back() ^= 1; };
    const auto microseconds = [](auto&& work) { return 1e6 * Timed(work); };
    const Medians saving = Alternate(
        101,
        [&] {
            change(values.back());
            return microseconds([&] { SaveSystemSettings(path, values); });
        },
        [&] {
            change(bytes);
            return microseconds([&] { SaveBare(path, bytes); });
        });
    const Medians loading = Alternate(
        301, [&] { return microseconds([&] { LoadSystemSettings(path); }); },
        [&] { return microseconds([&] { LoadBare(path); }); });

    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = OwnerProcedure;
    windowClass.lpszClassName = "ObrinBench.Owner";
    RegisterClassA(&windowClass);
    const HWND owner = CreateWindowA(windowClass.lpszClassName, "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                     700, 500, nullptr, nullptr, nullptr, nullptr);
    const SupportLibrary corvel;
    const std::string programKey = key;
    const Medians opening = Alternate(
        41, [&] { return MillisecondsToShown([&] { Form2(corvel, programKey).Show(owner); }); },
        [&] { return MillisecondsToShown([&] { BareDialog().ShowModal(owner, IDD_PROPERTIES); }); });
    DestroyWindow(owner);
    return {
        WithinRatio("saving a settings file", "us", saving, 1.25),
        WithinRatio("loading a settings file", "us", loading, 1.25),
        WithinRatio("opening the Properties dialog", "ms", opening, 1.2),
    };
}

} // namespace obrin::bench
