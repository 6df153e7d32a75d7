#include "end_to_end/Installation.h"

#include "platform/File.h"
#include "platform/Folder.h"
#include "platform/Workstation.h"
#include "resources/Ids.h"
#include "startup/UserRecords.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <stdexcept>
#include <utility>

namespace obrin::test {

namespace {

namespace fs = std::filesystem;

constexpr const char* logFile = "fenn.log";
constexpr std::array variables{"FENN_WINDOW_DELAY_MS", "FENN_START_DELAY_MS", "FENN_NEVER", "FENN_HANG",
                               "FENN_HANG_MS"};

fs::path ProgramFolder() {
    std::array<char, MAX_PATH> path{};
    GetModuleFileNameA(nullptr, path.data(), path.size());
    return fs::path(path.data()).parent_path();
}

BOOL CALLBACK AddText(HWND control, LPARAM texts) {
    *reinterpret_cast<std::string*>(texts) += TextOf(control) + "\n";
    return TRUE;
}

bool IsShown(HWND window, const std::string& caption) {
    return IsWindowVisible(window) && TextOf(window) == caption;
}

} // namespace

bool Eventually(const std::function<bool()>& condition, std::chrono::seconds most) {
    const auto end = std::chrono::steady_clock::now() + most;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        Sleep(10);
    }
    return true;
}

std::string TextOf(HWND window) {
    std::array<char, 1000> text{};
    SendMessageTimeoutA(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                        SMTO_ABORTIFHUNG, 2000, nullptr);
    return text.data();
}

Installation::Installation() {
    RegDeleteTreeA(HKEY_LOCAL_MACHINE, "Software\\Obrin");
    const fs::path path = fs::temp_directory_path() / ("obrin-" + std::to_string(GetCurrentProcessId()));
    fs::create_directories(path / "Core");
    for (const char* program : {"ObrinMenu.exe", "Corvel.dll", "Fenn.exe"})
        fs::copy_file(ProgramFolder() / program, path / program);
    folder = path.string();
    SetCurrentDirectoryA(folder.c_str());
    WriteFileBytes("FennConfig.Sys", "Drive S,C:\\OLD,X,\\\r\nFiles 120\r\n");
    WriteFileBytes("UB.mnu", "Utility Billing\r\nBilling\r\n>Post "
                             "Payments^UB\\Programs\\Post\r\nBackup^Core\\Programs\\CSBackup\r\n");
    for (const char* variable : variables)
        SetEnvironmentVariableA(variable, nullptr);
    SetEnvironmentVariableA("FENN_LOG", (folder + "\\" + logFile).c_str());
    SetEnvironmentVariableA("FENN_START_DELAY_MS", "20");
    SetEnvironmentVariableA("Tessel", (folder + "\\Local").c_str());
    fs::create_directory(path / "Local");
}

Installation::~Installation() {
    EndHost();
    SetCurrentDirectoryA("\\");
    std::error_code ignored;
    Eventually([&] { return fs::remove_all(folder, ignored) != static_cast<std::uintmax_t>(-1); },
               std::chrono::seconds(5));
}

void Installation::KnowUser(int wsid) const {
    WriteFileBytes("UserWSID.sys", UserWsidRecord(LoginName(), static_cast<std::int16_t>(wsid)));
    WriteFileBytes("Updated.txt", "0" + std::string(wsid < 10 ? "0" : "") + std::to_string(wsid));
}

std::vector<std::string> Installation::HostLog() const {
    std::vector<std::string> lines;
    if (!FileExists(logFile))
        return lines;
    std::string line;
    for (const char c : ReadFileBytes(logFile)) {
        if (c == '\n')
            lines.push_back(std::exchange(line, {}));
        else if (c != '\r')
            line += c;
    }
    return lines;
}

std::vector<std::string> Installation::TypedLines() const {
    std::vector<std::string> typed;
    for (const std::string& line : HostLog()) {
        if (line.starts_with("line "))
            typed.push_back(line.substr(5));
    }
    return typed;
}

std::vector<std::string> Installation::Keys() const {
    auto keys = HostLog();
    std::erase_if(
        keys, [](const std::string& line) { return !line.starts_with("down ") && !line.starts_with("up "); });
    return keys;
}

bool Installation::HostHasTyped(const std::string& lastLine) const {
    return Eventually([&] {
        const auto typed = TypedLines();
        return !typed.empty() && typed.back() == lastLine;
    });
}

DWORD Installation::HostProcess() const {
    DWORD process = 0;
    for (const std::string& line : HostLog()) {
        if (line.starts_with("process "))
            process = static_cast<DWORD>(std::stoul(line.substr(8)));
    }
    return process;
}

void Installation::EndHost() const {
    if (const UniqueFile host{OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, HostProcess())}) {
        TerminateProcess(host.get(), 0);
        WaitForSingleObject(host.get(), 5000);
    }
}

Launcher::Launcher() {
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    // The whole path: without it, the program beside the tests would be started.
    std::string command = "\"" + CurrentFolder() + "\\ObrinMenu.exe\"";
    if (!CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process))
        throw std::runtime_error("the launcher does not start");
}

Launcher::~Launcher() {
    if (WaitForSingleObject(process.hProcess, 0) != WAIT_OBJECT_0) {
        TerminateProcess(process.hProcess, 99);
        WaitForSingleObject(process.hProcess, 5000);
    }
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

HWND Launcher::Find(const std::function<bool(HWND)>& wanted) const {
    struct Search {
        DWORD process;
        const std::function<bool(HWND)>& wanted;
        HWND found = nullptr;

        static BOOL CALLBACK Try(HWND window, LPARAM parameter) {
            auto& search = *reinterpret_cast<Search*>(parameter);
            DWORD owner = 0;
            GetWindowThreadProcessId(window, &owner);
            if (owner == search.process && search.wanted(window))
                search.found = window;
            return search.found == nullptr;
        }
    } search{process.dwProcessId, wanted};
    EnumWindows(Search::Try, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

bool Launcher::Shows(const std::string& caption) const {
    return Find([&](HWND window) { return IsShown(window, caption); }) != nullptr;
}

HWND Launcher::Window(const std::string& caption) const {
    HWND window = nullptr;
    Eventually([&] { return (window = Find([&](HWND each) { return IsShown(each, caption); })) != nullptr; });
    return window;
}

HWND Launcher::HiddenMenu() const {
    HWND window = nullptr;
    Eventually([&] {
        window = Find([](HWND each) { return GetDlgItem(each, IDC_FRAME1) != nullptr; });
        return window != nullptr;
    });
    return window;
}

HWND Launcher::Tree() const {
    return GetDlgItem(GetDlgItem(Menu(), IDC_FRAME1), IDC_TREEVIEW1);
}

std::string Launcher::Texts(const std::string& caption) const {
    std::string texts;
    EnumChildWindows(Window(caption), AddText, reinterpret_cast<LPARAM>(&texts));
    return texts;
}

void Launcher::Press(const std::string& caption, int button) const {
    const HWND window = Window(caption);
    PostMessageA(window, WM_COMMAND, static_cast<WPARAM>(button),
                 reinterpret_cast<LPARAM>(GetDlgItem(window, button)));
    Eventually([&] { return !IsWindow(window) || !IsWindowVisible(window); });
}

void Launcher::AnswerWsid(const std::string& answer) const {
    const char* title = "Please Select a WSID";
    SendMessageA(GetDlgItem(Window(title), IDC_ANSWER), WM_SETTEXT, 0,
                 reinterpret_cast<LPARAM>(answer.c_str()));
    Press(title, IDOK);
}

int Launcher::ExitCode() const {
    if (WaitForSingleObject(process.hProcess, 20000) != WAIT_OBJECT_0)
        return -1;
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    return static_cast<int>(code);
}

void Key(WORD key) {
    keybd_event(static_cast<BYTE>(key), 0, 0, 0);
    keybd_event(static_cast<BYTE>(key), 0, KEYEVENTF_KEYUP, 0);
}

void ClickRow(HWND tree, int row, int depth, DWORD downAndUp, int times) {
    const auto height = static_cast<int>(SendMessageA(tree, TVM_GETITEMHEIGHT, 0, 0));
    const auto indent = static_cast<int>(SendMessageA(tree, TVM_GETINDENT, 0, 0));
    POINT place{indent * (depth + 1) + 10, height * row + height / 2};
    ClientToScreen(tree, &place);
    SetCursorPos(place.x, place.y);
    for (int i = 0; i < times; ++i)
        mouse_event(downAndUp, 0, 0, 0, 0);
}

} // namespace obrin::test
