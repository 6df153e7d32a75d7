// The built launcher against the stand-in host, as an operator and an administrator see them.

#include "end_to_end/Installation.h"

#include "menu/MenuFiles.h"
#include "platform/File.h"
#include "platform/Workstation.h"
#include "resources/Ids.h"
#include "startup/HostKeys.h"
#include "startup/UserRecords.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace obrin::test {
namespace {

using Lines = std::vector<std::string>;
namespace fs = std::filesystem;

constexpr DWORD leftClick = MOUSEEVENTF_LEFTDOWN | MOUSEEVENTF_LEFTUP;
constexpr DWORD rightClick = MOUSEEVENTF_RIGHTDOWN | MOUSEEVENTF_RIGHTUP;
const Lines startUB{"LOAD CORE\\STARTSYS", "RUN", "UB"};

std::string RememberedSystem() {
    char text[100] = "";
    DWORD size = sizeof text;
    RegGetValueA(HKEY_LOCAL_MACHINE, "Software\\Obrin", "LastSystem", RRF_RT_REG_SZ, nullptr, text, &size);
    return text;
}

void RememberSystem(const std::string& name) {
    RegSetKeyValueA(HKEY_LOCAL_MACHINE, "Software\\Obrin", "LastSystem", REG_SZ, name.c_str(),
                    static_cast<DWORD>(name.size() + 1));
}

std::string LabelText(const Launcher& launcher, int id) {
    return TextOf(GetDlgItem(launcher.Menu(), id));
}

TEST(Launcher, FirstDayOfAUser) {
    const Installation installation;
    const std::string user = LoginName();
    {
        const Launcher launcher;
        const std::string question =
            "Hello " + user +
            ", we have detected this is your first entry into Obrin what would you like your "
            "WSID Number to be?\r\n\r\n(Valid Answers are 1 to 99)\n";
        EXPECT_TRUE(launcher.Texts("Please Select a WSID").starts_with(question));
        launcher.AnswerWsid("0"); // refused
        launcher.AnswerWsid("7"); // the answer that nobody looks at
        launcher.Press("Please Select a WSID", IDCANCEL);
        launcher.AnswerWsid("8"); // nor at this one
        launcher.AnswerWsid(" 5 ");

        ASSERT_TRUE(launcher.Menu());
        EXPECT_EQ(ReadFileBytes("UserWSID.sys"), UserWsidRecord(user, 5));
        EXPECT_TRUE(FileExists("Menu 5.txt"));
        EXPECT_TRUE(ReadFileBytes("FennConfig.Sys").ends_with(",X,\\\r\nFiles 120\r\n"));
        EXPECT_EQ(installation.HostLog().front(), "start run core\\start -5");
        EXPECT_TRUE(installation.HostHasTyped("UB"));
        EXPECT_EQ(installation.TypedLines(), startUB);
        const HWND host = FindWindowA("ZafWindow", "Obrin-05");
        ASSERT_TRUE(host);
        EXPECT_FALSE(IsWindowVisible(host));
        EXPECT_EQ(LabelText(launcher, IDC_LABEL1), "Utility Billing");
        EXPECT_EQ(LabelText(launcher, IDC_FRAME1), "Utility Billing");
        EXPECT_EQ(LabelText(launcher, IDC_LABEL2), "User - " + user);
        EXPECT_EQ(LabelText(launcher, IDC_LABEL3), "WSID - 05");

        PostMessageA(launcher.Menu(), WM_CLOSE, 0, 0);
        EXPECT_EQ(launcher.ExitCode(), 0);
    }
    EXPECT_TRUE(installation.HostHasTyped("RUN CORE\\EXIT"));
    EXPECT_FALSE(FileExists("Menu 5.txt"));
    EXPECT_EQ(RememberedSystem(), "UB.mnu");

    WriteFileBytes("AA.mnu", "Another\r\n"); // the remembered system comes before the first one
    EXPECT_TRUE(Eventually([] { return FindWindowA("ZafWindow", nullptr) == nullptr; }));
    const Launcher next;
    ASSERT_TRUE(next.Menu()) << "not asked again";
    EXPECT_EQ(LabelText(next, IDC_LABEL1), "Utility Billing");
}

TEST(Launcher, RunsProgramsAndUpdatesTheWorkstationOnce) {
    const Installation installation;
    installation.KnowUser(42);
    WriteFileBytes("Updated.txt", "0010020"); // 42 is missing, and a stray byte stands at the end
    fs::create_directories("Tessel\\Exe");
    WriteFileBytes("Tessel\\Exe\\Tessel.Exe", "new version");
    WriteFileBytes("Local\\Tessel.exe", "old version");
    const Launcher launcher;
    ASSERT_TRUE(installation.HostHasTyped("UB"));
    const HWND tree = launcher.Tree();

    // Rows while all is collapsed: 0 "Billing", 1 "Backup".
    ClickRow(tree, 1, 0, leftClick, 2);
    ASSERT_TRUE(launcher.Window("Auto Update Utility"));
    EXPECT_TRUE(Eventually([&] {
        return launcher.Texts("Auto Update Utility").find("Updating:\r\nComplete\n") != std::string::npos;
    }));
    RECT menu;
    RECT update;
    GetWindowRect(launcher.Menu(), &menu);
    GetWindowRect(launcher.Window("Auto Update Utility"), &update);
    EXPECT_EQ(update.top - menu.top, (update.bottom - update.top) / 2 / 2);
    EXPECT_EQ(update.left - menu.left, (update.right - update.left) / 2);
    EXPECT_EQ(ReadFileBytes("Local\\Tessel.exe"), "new version");
    EXPECT_EQ(ReadFileBytes("Updated.txt"), "0010020") << "only entered once the window is closed";
    EXPECT_EQ(installation.TypedLines(), startUB) << "the command waits for the update";
    launcher.Press("Auto Update Utility", IDOK);

    Lines expected = startUB;
    expected.insert(expected.end(), {"LOAD CORE\\PROGRAMS\\CSBACKUP", "RUN"});
    EXPECT_TRUE(installation.HostHasTyped("RUN"));
    EXPECT_TRUE(Eventually([&] { return installation.TypedLines() == expected; }));
    EXPECT_EQ(ReadFileBytes("Updated.txt"), "001002042");
    HWND program = nullptr;
    EXPECT_TRUE(Eventually([&] {
        return (program = FindWindowA("FennProgram", "CORE\\PROGRAMS\\CSBACKUP")) != nullptr &&
               IsWindowVisible(program);
    })) << "the operator sees the program";
    PostMessageA(program, WM_CLOSE, 0, 0);

    // Each key as a pair of messages; the second parameter and the way of sending are the log's own checks.
    Lines expectedKeys;
    for (const auto code :
         HostKeyCodes(StartSystem("UB") + LoadAndRun("Core\\Programs\\CSBackup"), UpperCase)) {
        expectedKeys.push_back("down " + std::to_string(code));
        expectedKeys.push_back("up " + std::to_string(code));
    }
    EXPECT_TRUE(Eventually([&] { return installation.Keys() == expectedKeys; }));

    // A heading runs nothing; Enter and the button run the selected program. No second update.
    SetForegroundWindow(launcher.Menu());
    EXPECT_TRUE(Eventually([&] { return GetForegroundWindow() == launcher.Menu(); }));
    const HTREEITEM heading = reinterpret_cast<HTREEITEM>(SendMessageA(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0));
    SendMessageA(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(heading));
    SendMessageA(launcher.Menu(), WM_COMMAND, IDC_COMMAND1, 0);
    SendMessageA(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(heading));
    ClickRow(tree, 1, 1, leftClick);
    EXPECT_TRUE(Eventually([&] {
        return SendMessageA(tree, TVM_GETNEXTITEM, TVGN_CARET, 0) != reinterpret_cast<LPARAM>(heading);
    }));
    Key(VK_RETURN);
    expected.insert(expected.end(), {"LOAD UB\\PROGRAMS\\POST", "RUN"});
    EXPECT_TRUE(Eventually([&] { return installation.TypedLines() == expected; }));
    SendMessageA(launcher.Menu(), WM_COMMAND, IDC_COMMAND1, 0);
    expected.insert(expected.end(), {"LOAD UB\\PROGRAMS\\POST", "RUN"});
    EXPECT_TRUE(Eventually([&] { return installation.TypedLines() == expected; }));
    EXPECT_FALSE(launcher.Shows("Auto Update Utility"));
    EXPECT_EQ(ReadFileBytes("Updated.txt"), "001002042");
}

TEST(Launcher, SwitchesSystemsAndRemembersTheLast) {
    const Installation installation;
    installation.KnowUser(5);
    WriteFileBytes("ZZ.mnu", "  Zoning  ^x\r\nOnly^ZZ\\One\r\n");
    RememberSystem("UB.mnu");
    const Launcher launcher;
    ASSERT_TRUE(installation.HostHasTyped("UB"));
    const auto files = EnumerateMenuFiles(); // in the order of the system list
    const auto zoning = std::ranges::find(files, "ZZ.mnu", &MenuFile::name) - files.begin();
    SendMessageA(launcher.Menu(), WM_COMMAND, static_cast<WPARAM>(ID_SYSTEMS + zoning), 0);
    EXPECT_TRUE(installation.HostHasTyped("ZZ"));
    EXPECT_EQ(LabelText(launcher, IDC_LABEL1), "Zoning");
    EXPECT_EQ(SendMessageA(launcher.Tree(), TVM_GETCOUNT, 0, 0), 1);
    SendMessageA(launcher.Menu(), WM_COMMAND, ID_BACKUP, 0);
    EXPECT_EQ(installation.TypedLines(), (Lines{"LOAD CORE\\STARTSYS", "RUN", "UB", "LOAD CORE\\STARTSYS",
                                                "RUN", "ZZ", "LOAD CORE\\PROGRAMS\\CSBACKUP", "RUN"}));
    // The Windows session ends.
    SendMessageA(launcher.Menu(), WM_ENDSESSION, TRUE, 0);
    EXPECT_EQ(launcher.ExitCode(), 0);
    EXPECT_TRUE(installation.HostHasTyped("RUN CORE\\EXIT"));
    EXPECT_EQ(RememberedSystem(), "ZZ.mnu");
    EXPECT_FALSE(FileExists("Menu 5.txt"));
}

TEST(Launcher, ShowsTheRememberedSystemWhileItsFileIsThere) {
    for (const auto& [remembered, code] :
         {std::pair{"Ledger.txt", "LE"}, {"gone.mnu", "UB"}, {"Core", "UB"}, {"*.mnu", "UB"}}) {
        const Installation installation;
        installation.KnowUser(5);
        WriteFileBytes("Ledger.txt",
                       "General Ledger\r\n"); // a remembered file need not look like a menu file
        RememberSystem(remembered);
        const Launcher launcher;
        EXPECT_TRUE(installation.HostHasTyped(code)) << remembered;
    }
}

TEST(Launcher, RightClickSelectsAndOffersThePopup) {
    const Installation installation;
    installation.KnowUser(5);
    const Launcher launcher;
    ASSERT_TRUE(installation.HostHasTyped("UB"));
    const HWND tree = launcher.Tree();
    SetForegroundWindow(launcher.Menu());
    const auto popup = [] { return FindWindowA("#32768", nullptr); };
    const auto chooseHelp = [&] {
        ASSERT_TRUE(Eventually([&] { return IsWindowVisible(popup()); }));
        Key('H');
        ASSERT_TRUE(launcher.Window("Warning"));
        EXPECT_NE(launcher.Texts("Warning").find("Option not available. In Developement."),
                  std::string::npos);
        launcher.Press("Warning", IDOK);
    };
    ClickRow(tree, 1, 0, rightClick);
    chooseHelp();
    ClickRow(tree, 0, 0, rightClick); // a heading: selected, without a popup
    EXPECT_TRUE(Eventually([&] {
        return SendMessageA(tree, TVM_GETNEXTITEM, TVGN_CARET, 0) ==
               SendMessageA(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0);
    }));
    EXPECT_FALSE(IsWindowVisible(popup()));
    ClickRow(tree, 1, 0, rightClick);
    chooseHelp();
    Key(VK_APPS);
    chooseHelp();
}

TEST(Launcher, RefusesToRunBesideAnOpenHost) {
    const Installation installation;
    installation.KnowUser(5);
    const char* title = "Error Opening Obrin System";
    PROCESS_INFORMATION host{};
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = SW_SHOWMINNOACTIVE;
    std::string command = "\"" + installation.folder + "\\Fenn.exe\"";
    ASSERT_TRUE(CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                               &startup, &host));
    const UniqueFile process(host.hProcess);
    const UniqueFile thread(host.hThread);
    HWND window = nullptr;
    ASSERT_TRUE(Eventually([&] { return (window = FindWindowA("ZafWindow", "Obrin-01")) != nullptr; }));
    ShowWindow(window, SW_HIDE);
    for (const int answer : {IDNO, IDYES}) {
        WriteFileBytes("FennConfig.Sys", "x\r\n");
        const Launcher launcher;
        ASSERT_TRUE(launcher.Window(title));
        EXPECT_NE(
            launcher.Texts(title).find("Error: Fenn Already Open!! Please close before proceeding.\r\n\r\n"
                                       "Would you like us to show the Fenn Window Now?"),
            std::string::npos);
        GUITHREADINFO focus{};
        focus.cbSize = sizeof focus;
        GetGUIThreadInfo(GetWindowThreadProcessId(launcher.Window(title), nullptr), &focus);
        EXPECT_EQ(GetDlgCtrlID(focus.hwndFocus), IDNO) << "the default";
        launcher.Press(title, answer);
        EXPECT_EQ(launcher.ExitCode(), 0);
        EXPECT_TRUE(ReadFileBytes("FennConfig.Sys").starts_with("Drive S,")) << "rewritten all the same";
        EXPECT_EQ(IsWindowVisible(window) != FALSE, answer == IDYES);
    }
}

TEST(Launcher, SecondMenuShowsTheFirst) {
    const Installation installation;
    installation.KnowUser(5);
    const Launcher first;
    ASSERT_TRUE(installation.HostHasTyped("UB"));
    installation.EndHost(); // with a host open, the second one's answer would be another
    ShowWindow(first.Menu(), SW_SHOWMINNOACTIVE);
    const Launcher second;
    EXPECT_EQ(second.ExitCode(), 0);
    EXPECT_TRUE(Eventually([&] { return !IsIconic(first.Menu()); }));
    PostMessageA(first.Menu(), WM_CLOSE, 0, 0);
    EXPECT_EQ(first.ExitCode(), 0) << "commands to a host that is gone are lost";
}

TEST(Launcher, WaitsForASlowHostAndCanBeClosedMeanwhile) {
    for (const auto& [variable, value] :
         {std::pair{"FENN_WINDOW_DELAY_MS", "300"}, {"FENN_START_DELAY_MS", "300"}}) {
        const Installation installation;
        installation.KnowUser(5);
        SetEnvironmentVariableA(variable, value);
        const Launcher launcher;
        EXPECT_EQ(TextOf(launcher.HiddenMenu()), "") << "a second menu must not find an empty window";
        EXPECT_TRUE(installation.HostHasTyped("UB"));
    }
    for (const char* never : {"window", "caption"}) {
        const Installation installation;
        installation.KnowUser(5);
        RememberSystem("PR.mnu");
        SetEnvironmentVariableA("FENN_NEVER", never);
        const Launcher launcher;
        const HWND menu = launcher.HiddenMenu();
        ASSERT_TRUE(Eventually([&] { return installation.HostProcess() != 0; }));
        EXPECT_FALSE(IsWindowVisible(menu));
        PostMessageA(menu, WM_CLOSE, 0, 0);
        EXPECT_EQ(launcher.ExitCode(), 0);
        EXPECT_EQ(RememberedSystem(), "PR.mnu") << "no system was shown that could take its place";
    }
}

struct Fault {
    const char* name;
    void (*prepare)();
    const char* title;
    const char* text;
    int exitCode;
};

class Faults : public testing::TestWithParam<Fault> {};

TEST_P(Faults, EndTheProgramWithTheirError) {
    const auto& [name, prepare, title, text, exitCode] = GetParam();
    const Installation installation;
    installation.KnowUser(5);
    prepare();
    const Launcher launcher;
    ASSERT_TRUE(launcher.Window(title));
    EXPECT_NE(launcher.Texts(title).find(text), std::string::npos) << launcher.Texts(title);
    EXPECT_FALSE(launcher.Shows("Obrin System Menu"));
    launcher.Press(title, IDOK);
    EXPECT_EQ(launcher.ExitCode(), exitCode);
    for (const std::string& line : installation.TypedLines())
        EXPECT_NE(line, "RUN CORE\\EXIT") << "an error ends the program without the orderly close";
}

INSTANTIATE_TEST_SUITE_P(
    , Faults,
    testing::Values(
        Fault{"NoConfiguration", [] { DeleteFileA("FennConfig.Sys"); }, "Error!", "Config File Not found!",
              0},
        Fault{"NoCoreFolder", [] { RemoveDirectoryA("Core"); }, "ObrinMenu", "Core\\TempOut.tmp", 1},
        Fault{"NoSupportLibrary", [] { DeleteFileA("Corvel.dll"); }, "ObrinMenu", "Corvel.dll", 1},
        Fault{"NoMenuFile", [] { DeleteFileA("UB.mnu"); }, "ObrinMenu", "there is no menu file (*.mnu)", 1},
        Fault{"EmptyMenuFile", [] { WriteFileBytes("UB.mnu", ""); }, "ObrinMenu", "UB.mnu", 1},
        Fault{"BadMenuFile", [] { WriteFileBytes("UB.mnu", "T\r\n>A^K\r\n"); }, "ObrinMenu", "UB.mnu, line 2",
              1},
        Fault{"BinaryMenuFile", [] { WriteFileBytes("UB.mnu", ReadFileBytes("Fenn.exe")); }, "ObrinMenu",
              "UB.mnu, line ", 1},
        Fault{"NoPicture", [] { WriteFileBytes("Startup.bmp", "no picture"); }, "ObrinMenu", "Startup.bmp",
              1},
        Fault{"UsersAreAFolder",
              [] {
                  DeleteFileA("UserWSID.sys");
                  CreateDirectoryA("UserWSID.sys", nullptr);
              },
              "ObrinMenu", "UserWSID.sys", 1},
        Fault{"HundredSystems",
              [] {
                  for (int i = 0; i < 99; ++i)
                      WriteFileBytes(std::to_string(i) + ".mnu", "T\r\n");
              },
              "ObrinMenu", "to the system list as item 99", 1}),
    [](const auto& test) { return test.param.name; });

TEST(Launcher, TakesWhatIsOddButAllowed) {
    const Installation installation;
    installation.KnowUser(5);
    WriteFileBytes("UB.mnu", std::string(10'000'000, 'x') + "\rA^K\r"); // a title of 10 MB
    for (int i = 0; i < 98; ++i)
        WriteFileBytes(std::to_string(i) + ".mnu", "T\r\n");
    RememberSystem(" UB.mnu ");
    const Launcher launcher;
    EXPECT_TRUE(installation.HostHasTyped("UB"));
    EXPECT_TRUE(launcher.Menu());
}

TEST(Launcher, RegisterThatIsAFolderEndsTheProgram) {
    const Installation installation;
    installation.KnowUser(5);
    DeleteFileA("Updated.txt");
    CreateDirectoryA("Updated.txt", nullptr);
    const Launcher launcher;
    ASSERT_TRUE(installation.HostHasTyped("UB"));
    PostMessageA(launcher.Menu(), WM_COMMAND, IDC_COMMAND1, 0);
    EXPECT_NE(launcher.Texts("ObrinMenu").find("Updated.txt"), std::string::npos);
    launcher.Press("ObrinMenu", IDOK);
    EXPECT_EQ(launcher.ExitCode(), 1);
}

} // namespace
} // namespace obrin::test
