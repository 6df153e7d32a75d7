// Compares saving and loading a settings file with bare calls that write and read the same bytes as safely.
// Compares opening the Properties dialog with opening its dialog templates without filling their controls.

#include "Installation.h"
#include "Measurements.h"
#include "Table.h"

#include "platform/SupportLibrary.h"
#include "resources/Ids.h"
#include "settings/Form2.h"
#include "settings/SettingsStore.h"

#include <array>
#include <stdexcept>

namespace obrin::bench {

namespace {

constexpr const char* key = "Core\\Programs\\CSBackup";

void LoadBare(const std::string& path) {
    std::array<char, 4096> bytes;
    DWORD count = 0;
    const HANDLE file =
        CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ReadFile(file, bytes.data(), bytes.size(), &count, nullptr);
    CloseHandle(file);
}

// Looks for the folders and reads the file first, as the menu does.
void SaveBare(const std::string& path, const std::string& bytes) {
    for (const char* folder : {"Ini", "Ini\\Core", "Ini\\Core\\Programs"})
        GetFileAttributesA(folder);
    LoadBare(path);
    const std::string temporary = path + ".tmp";
    const HANDLE file = CreateFileA(temporary.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
    DWORD count = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr);
    FlushFileBuffers(file);
    CloseHandle(file);
    // Keeps the attributes and rights of the file, as the menu does.
    if (!ReplaceFileA(path.c_str(), temporary.c_str(), nullptr, 0, nullptr, nullptr))
        throw std::runtime_error("the settings file cannot be replaced");
}

INT_PTR CALLBACK PageProcedure(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;
}

INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL)
        EndDialog(dialog, 0);
    if (message != WM_INITDIALOG)
        return FALSE;
    for (const int resource : {IDD_PAGE_MARGINS, IDD_PAGE_SETTINGS, IDD_PAGE_GENERAL}) {
        const HWND page = CreateDialogA(nullptr, MAKEINTRESOURCEA(resource), dialog, PageProcedure);
        SetWindowPos(page, HWND_TOP, 20, 40, 500, 380, SWP_NOACTIVATE);
    }
    return TRUE;
}

LONGLONG shownTime; // ticks; 0 until the dialog is shown

// A modal dialog sends WM_ENTERIDLE to its owner when it is shown, painted and has no more messages.
LRESULT CALLBACK OwnerProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_ENTERIDLE || shownTime != 0)
        return DefWindowProcA(window, message, wParam, lParam);
    shownTime = Now();
    PostMessageA(reinterpret_cast<HWND>(lParam), WM_COMMAND, IDCANCEL, 0);
    return 0;
}

double TimeToShown(const std::function<void()>& open) {
    shownTime = 0;
    const LONGLONG start = Now();
    open();
    return Milliseconds(shownTime - start);
}

} // namespace

void MeasureSave() {
    constexpr int runs = 101;
    const test::ScratchFolder folder;
    SetEnvironmentVariableA("TesselTemp", folder.path.string().c_str());
    const std::string path = SettingsPath(key);
    WriteDefaultSettings(path, key);
    SettingValues values;
    values.fill("1440");
    std::string bytes = FormatSettings(values);
    // Changes the value each time, because the menu does not save what the file already contains.
    const auto change = [](std::string& text) { text.back() ^= 1; };
    PrintRatio("saving a settings file", "ms",
               MeasureAlternately(
                   runs,
                   [&] {
                       change(values.back());
                       return MeasureTime([&] { SaveSystemSettings(path, values); });
                   },
                   [&] {
                       change(bytes);
                       return MeasureTime([&] { SaveBare(path, bytes); });
                   }),
               1.25);
}

void MeasureLoad() {
    constexpr int runs = 301;
    const test::ScratchFolder folder;
    SetEnvironmentVariableA("TesselTemp", folder.path.string().c_str());
    const std::string path = SettingsPath(key);
    WriteDefaultSettings(path, key);
    PrintRatio("loading a settings file", "ms",
               MeasureAlternately(
                   runs, [&] { return MeasureTime([&] { LoadSystemSettings(path); }); },
                   [&] { return MeasureTime([&] { LoadBare(path); }); }),
               1.25);
}

void MeasureDialog() {
    constexpr int runs = 41;
    const test::ScratchFolder folder;
    SetEnvironmentVariableA("TesselTemp", folder.path.string().c_str());
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = OwnerProcedure;
    windowClass.lpszClassName = "ObrinBench.Owner";
    RegisterClassA(&windowClass);
    const HWND owner = CreateWindowA(windowClass.lpszClassName, "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                     700, 500, nullptr, nullptr, nullptr, nullptr);
    const SupportLibrary corvel;
    const std::string programKey = key;
    PrintRatio("opening the Properties dialog", "ms",
               MeasureAlternately(
                   runs, [&] { return TimeToShown([&] { Form2(corvel, programKey).Show(owner); }); },
                   [&] {
                       return TimeToShown([&] {
                           DialogBoxA(nullptr, MAKEINTRESOURCEA(IDD_PROPERTIES), owner, DialogProcedure);
                       });
                   }),
               1.25);
    DestroyWindow(owner);
}

} // namespace obrin::bench
