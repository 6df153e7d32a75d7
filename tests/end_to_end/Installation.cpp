#include "end_to_end/Installation.h"

#include "common/Installation.h"
#include "common/Lines.h"
#include "support/TopWindow.h"

namespace obrin::test {

constexpr const char* logFile = "fenn.log";

namespace {

// Windows does not let a program come in front of the one in use, so the tests could not bring the menu to
// the front to type into it. Switches this lock off while the tests run, and does not save that for later
// sessions.
class WithoutForegroundLock : public testing::Environment {
    void SetUp() override {
        SystemParametersInfoA(SPI_GETFOREGROUNDLOCKTIMEOUT, 0, &timeout, 0);
        Set(0);
    }
    void TearDown() override { Set(timeout); }
    static void Set(UINT_PTR milliseconds) {
        SystemParametersInfoA(SPI_SETFOREGROUNDLOCKTIMEOUT, 0, reinterpret_cast<void*>(milliseconds), 0);
    }

    DWORD timeout = 0;
};

const testing::Environment* const withoutForegroundLock =
    testing::AddGlobalTestEnvironment(new WithoutForegroundLock);

} // namespace

bool KeepsForeground(HWND window) {
    return Eventually([&, times = 0]() mutable {
        times = GetForegroundWindow() == window ? times + 1 : 0;
        return times > 10;
    });
}

std::string TextOf(HWND window) {
    std::array<char, 1000> text{};
    SendMessageTimeoutA(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                        SMTO_ABORTIFHUNG, 2000, nullptr);
    return text.data();
}

Installation::Installation(int wsid) {
    RegDeleteKeyValueA(HKEY_LOCAL_MACHINE, menuRegistryKey, lastSystemValue);
    for (const char* program : {"ObrinMenu.exe", "Corvel.dll", "Fenn.exe"})
        std::filesystem::copy_file(OwnProgram().replace_filename(program), program);
    CreateFolder("Core");
    CreateFolder("Local");
    WriteFileBytes("FennConfig.Sys", "Drive S,C:\\OLD,X,\\\r\nFiles 120\r\n");
    WriteFileBytes("UB.mnu", "Utility Billing\r\nBilling\r\n>Post "
                             "Payments^UB\\Programs\\Post\r\nBackup^Core\\Programs\\CSBackup\r\n");
    if (wsid != 0) {
        WriteFileBytes("UserWSID.sys", UserWsidRecord(LoginName(), static_cast<std::int16_t>(wsid)));
        WriteFileBytes("Updated.txt", "005");
    }
    for (const char* variable :
         {"FENN_WINDOW_DELAY_MS", "FENN_NEVER", "FENN_HANG", "FENN_HANG_MS", "TesselTemp"})
        SetEnvironmentVariableA(variable, nullptr);
    SetEnvironmentVariableA("FENN_LOG", logFile);
    SetEnvironmentVariableA("FENN_CAPTION_DELAY_MS", "20");
    SetEnvironmentVariableA("Tessel", "Local");
}

Lines Installation::Logged(const std::string& word) const {
    Lines logged;
    const std::string log = FileExists(logFile) ? ReadFileBytes(logFile) : "";
    LineReader lines(log);
    while (const auto line = lines.Next()) {
        if (line->starts_with(word + " "))
            logged.emplace_back(line->substr(word.size() + 1));
    }
    return logged;
}

bool Installation::HostGetsLast(const std::string& line) const {
    return Eventually([&] {
        const Lines typed = Logged("line");
        return !typed.empty() && typed.back() == line;
    });
}

void Installation::EndHost() const {
    for (const std::string& process : Logged("process")) {
        if (const UniqueHandle host{
                OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, std::stoul(process))}) {
            TerminateProcess(host.get(), 0);
            WaitForSingleObject(host.get(), 5000);
        }
    }
}

RunningMenu::~RunningMenu() {
    TerminateProcess(started.process.get(), 99);
    WaitForSingleObject(started.process.get(), 5000);
}

HWND RunningMenu::Shown(const std::string& caption) const {
    return FindTopWindow([&](HWND window) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        return owner == started.id && IsWindowVisible(window) && TextOf(window) == caption;
    });
}

HWND RunningMenu::Window(const std::string& caption) const {
    HWND window = nullptr;
    EXPECT_TRUE(Eventually([&] { return (window = Shown(caption)) != nullptr; }))
        << "no window has the caption " << caption;
    return window;
}

HWND RunningMenu::LoadingWindow() const {
    HWND window = nullptr;
    EXPECT_TRUE(Eventually([&] { return (window = FindWindowA(menuWindowClass, nullptr)) != nullptr; }));
    return window;
}

std::string RunningMenu::Texts(const std::string& caption) const {
    std::string texts;
    for (HWND control = GetWindow(Window(caption), GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT))
        texts += TextOf(control) + "\n";
    return texts;
}

void RunningMenu::Press(const std::string& caption, int button) const {
    const HWND window = Window(caption);
    // Windows gives the only button of a message box the number of Cancel.
    if (GetDlgItem(window, button) == nullptr)
        button = IDCANCEL;
    PostMessageA(window, WM_COMMAND, static_cast<WPARAM>(button),
                 reinterpret_cast<LPARAM>(GetDlgItem(window, button)));
    Eventually([&] { return !IsWindow(window) || !IsWindowVisible(window); });
}

int RunningMenu::ExitCode() const {
    DWORD code = STILL_ACTIVE;
    Eventually([&] { return GetExitCodeProcess(started.process.get(), &code) && code != STILL_ACTIVE; });
    return static_cast<int>(code);
}

void RememberSystem(const std::string& name) {
    SupportLibrary().SetRegValue(HKEY_LOCAL_MACHINE, menuRegistryKey, lastSystemValue, name);
}

void ExpectRemembered(const std::string& name) {
    // Without the right to write there, nothing can be remembered.
    EXPECT_EQ(SupportLibrary().GetRegValue(HKEY_LOCAL_MACHINE, menuRegistryKey, lastSystemValue),
              MayRememberSystem() ? name : "");
}

} // namespace obrin::test
