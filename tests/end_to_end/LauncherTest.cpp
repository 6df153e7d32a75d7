// The built launcher against the stand-in host, as an operator and an administrator see them.

#include "end_to_end/Input.h"
#include "end_to_end/Installation.h"

#include "menu/MenuFiles.h"

#include <algorithm>

namespace obrin::test {
namespace {

constexpr const char* noticeTitle = "Waiting for Fenn";
constexpr const char* hostIsOpen = "Error Opening Obrin System";

void ExpectRemembered(const std::string& name) {
    EXPECT_EQ(SupportLibrary().GetRegValue(HKEY_LOCAL_MACHINE, "Software\\Obrin", "LastSystem"),
              MayRememberSystem() ? name : "");
}

void RememberSystem(const std::string& name) {
    SupportLibrary().SetRegValue(HKEY_LOCAL_MACHINE, "Software\\Obrin", "LastSystem", name);
}

// Of a message box, where Windows and Wine give it different numbers.
bool HasIcon(HWND box) {
    return SendDlgItemMessageA(box, 20, STM_GETICON, 0, 0) != 0 ||
           SendDlgItemMessageA(box, 1088, STM_GETICON, 0, 0) != 0;
}

TEST(Launcher, FirstDayOfAUser) {
    const Installation installation(0);
    const std::string user = LoginName();
    const std::string other = UserWsidRecord("other than " + user, 9);
    WriteFileBytes("UserWSID.sys", other.substr(0, 102)); // the last record may be so short
    const Launcher launcher;
    const std::string title = "Please Select a WSID";
    EXPECT_TRUE(launcher.Texts(title).starts_with(
        "Hello " + user +
        ", we have detected this is your first entry into Obrin what would you like your "
        "WSID Number to be?\r\n\r\n(Valid Answers are 1 to 99)\n"));
    // Behind each one that is refused, another one that nobody looks at.
    const std::pair<const char*, int> answers[] = {
        {"0", IDOK}, {"7", IDOK}, {"9", IDCANCEL}, {"8", IDOK}, {" 5 ", IDOK}};
    for (const auto& [answer, button] : answers) {
        SendMessageA(GetDlgItem(launcher.Window(title), IDC_ANSWER), WM_SETTEXT, 0,
                     reinterpret_cast<LPARAM>(answer));
        launcher.Press(title, button);
    }
    ASSERT_TRUE(launcher.Menu());
    EXPECT_EQ(ReadFileBytes("UserWSID.sys"), other + UserWsidRecord(user, 5));
    EXPECT_TRUE(FileExists("Menu 5.txt"));
    EXPECT_EQ(installation.Logged("start"), Lines{"run core\\start -5"});
    EXPECT_TRUE(installation.HostTypes({"LOAD CORE\\STARTSYS", "RUN", "UB"}));
    const std::string keys = "down 76\r\nup 76\r\ndown 79\r\nup 79\r\n"; // L and O
    EXPECT_NE(ReadFileBytes("fenn.log").find(keys), std::string::npos) << "sent, not posted";
    const HWND host = FindWindowA("ZafWindow", "Obrin-05");
    ASSERT_TRUE(host);
    EXPECT_FALSE(IsWindowVisible(host));
    EXPECT_EQ(launcher.Texts("Obrin System Menu"),
              "E-Mail us!\nGot a better idea?\nUtility Billing\nUtility Billing\n\nUser - " + user +
                  "\nWSID - 05\n");
    PostMessageA(launcher.Menu(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(launcher.ExitCode() == 0 && !FileExists("Menu 5.txt"));
}

TEST(Launcher, RunsProgramsAndUpdatesTheWorkstationOnce) {
    const Installation installation(42);
    const std::string title = "Auto Update Utility";
    WriteFileBytes("Updated.txt", "42042004"); // no record is 042, and the last one is cut off
    const Launcher launcher;
    Lines expected{"LOAD CORE\\STARTSYS", "RUN", "UB"};
    ASSERT_TRUE(installation.HostTypes(expected));
    const HWND tree = launcher.Tree();

    // Rows while all is collapsed: 0 "Billing", 1 "Backup".
    ClickRow(tree, 1, 0, leftClick);
    EXPECT_TRUE(Eventually([&] { return TreeView_GetSelection(tree) != TreeView_GetRoot(tree); }));
    // The second one is handled by the events of the update that the first one begins.
    for (int i = 0; i < 2; ++i)
        PostMessageA(tree, WM_CHAR, VK_RETURN, 0);
    EXPECT_TRUE(Eventually([&] {
        return launcher.Texts(title).find("Updating:\r\nComplete\nWe have detect a workstation update is "
                                          "available. We are now updating your files.\n") !=
               std::string::npos;
    }));
    RECT menu, update;
    GetWindowRect(launcher.Menu(), &menu);
    GetWindowRect(launcher.Window(title), &update);
    EXPECT_EQ(update.top - menu.top, (update.bottom - update.top) / 2 / 2);
    EXPECT_EQ(update.left - menu.left, (update.right - update.left) / 2);
    EXPECT_EQ(ReadFileBytes("Updated.txt"), "42042004") << "only entered once the window is closed";
    EXPECT_EQ(installation.Logged("line"), expected) << "the command waits for the update";
    launcher.Press(title, IDOK);
    expected.insert(expected.end(), {"LOAD CORE\\PROGRAMS\\CSBACKUP", "RUN"});
    EXPECT_TRUE(installation.HostTypes(expected));
    EXPECT_EQ(ReadFileBytes("Updated.txt"), "420420042");
    const auto seesAndCloses = [&](const char* name) {
        HWND program = nullptr;
        EXPECT_TRUE(Eventually([&] { return IsWindowVisible(program = FindWindowA("FennProgram", name)); }));
        PostMessageA(program, WM_CLOSE, 0, 0);
        EXPECT_TRUE(Eventually([&] { return !IsWindow(program); }));
        SetForegroundWindow(launcher.Menu());
    };
    seesAndCloses("CORE\\PROGRAMS\\CSBACKUP");

    // A heading runs nothing; a double click, Enter and the button run the selected program. No second
    // update.
    SetForegroundWindow(launcher.Menu());
    const HTREEITEM heading = TreeView_GetRoot(tree);
    TreeView_SelectItem(tree, heading);
    launcher.Send(WM_COMMAND, IDC_COMMAND1);
    ClickRow(tree, 0, 0, leftClick, 2);
    EXPECT_TRUE(Eventually(
        [&] { return TreeView_GetNextVisible(tree, heading) == TreeView_GetChild(tree, heading); }));
    const std::function<void()> ways[] = {
        [&] { ClickRow(tree, 1, 1, leftClick, 2); },
        [&] {
            EXPECT_TRUE(KeepsForeground(launcher.Menu()));
            PressKey(VK_RETURN);
        },
        [&] { // the button, behind the tree
            EXPECT_TRUE(KeepsForeground(launcher.Menu()));
            PressKey(VK_TAB);
            PressKey(VK_SPACE);
        },
    };
    for (const auto& run : ways) {
        run();
        expected.insert(expected.end(), {"LOAD UB\\PROGRAMS\\POST", "RUN"});
        EXPECT_TRUE(installation.HostTypes(expected));
        seesAndCloses("UB\\PROGRAMS\\POST");
    }
    EXPECT_FALSE(launcher.Shown(title));
}

TEST(Launcher, SwitchesSystemsAndRemembersTheLast) {
    const Installation installation(5);
    WriteFileBytes("ZZ.mnu", "  Zoning  ^x\r\nFirst^ZZ\\One\r\nNext^ZZ\\Two\r\nLast^K\r\n");
    RememberSystem("UB.mnu");
    SetEnvironmentVariableA("FENN_HANG", "LOAD CORE\\PROGRAMS\\CSBACKUP");
    SetEnvironmentVariableA("FENN_HANG_MS", "500");
    const Launcher launcher;
    ASSERT_TRUE(installation.HostTypesLast("UB"));
    const auto files = EnumerateMenuFiles(); // in the order of the system list
    const auto zoning = std::ranges::find(files, "ZZ.mnu", &MenuFile::name) - files.begin();
    for (const auto system : {1 - zoning, zoning}) // the first of the list and the last
        launcher.Send(WM_COMMAND, static_cast<WPARAM>(ID_SYSTEMS + system));
    EXPECT_NE(launcher.Texts("Obrin System Menu").find("\nZoning\nZoning\n"), std::string::npos);
    const HWND tree = launcher.Tree();
    EXPECT_EQ(TreeView_GetCount(tree), 3U);
    EXPECT_TRUE(KeepsForeground(launcher.Menu()));
    PressKey(VK_DOWN);
    EXPECT_TRUE(Eventually([&] {
        return TreeView_GetSelection(tree) == TreeView_GetNextSibling(tree, TreeView_GetRoot(tree));
    })) << "the tree has kept the keyboard";
    launcher.Send(WM_ENDSESSION, FALSE); // the Windows session was to end and does not
    PostMessageA(launcher.Menu(), WM_COMMAND, ID_BACKUP, 0);
    EXPECT_TRUE(Eventually([&] { return !installation.Logged("hang").empty(); }));
    launcher.Send(WM_ENDSESSION, TRUE); // it ends, in the middle of a command
    EXPECT_EQ(launcher.ExitCode(), 0);
    EXPECT_TRUE(installation.HostTypes({"LOAD CORE\\STARTSYS", "RUN", "UB", "LOAD CORE\\STARTSYS", "RUN",
                                        "UB", "LOAD CORE\\STARTSYS", "RUN", "ZZ",
                                        "LOAD CORE\\PROGRAMS\\CSBACKUP", "RUN", "RUN CORE\\EXIT"}));
    ExpectRemembered("ZZ.mnu");
    EXPECT_FALSE(FileExists("Menu 5.txt"));
}

TEST(Launcher, ShowsTheRememberedSystemWhileItsFileIsThere) {
    if (!MayRememberSystem())
        GTEST_SKIP() << "no right to write the registry's local machine";
    const std::pair<const char*, bool> cases[] = {
        {"Ledger.txt", true}, {"gone.mnu", false}, {"Core", false}, {"*.mnu", false}, {" Ledger.txt ", true}};
    for (const auto& [remembered, isThere] : cases) {
        const Installation installation(5);
        WriteFileBytes("AA.mnu", "Assets\r\n");
        const std::string first = EnumerateMenuFiles().front().name.substr(0, 2);
        WriteFileBytes("Ledger.txt", "General Ledger\r\n"); // it need not look like a menu file
        RememberSystem(remembered);
        const Launcher launcher;
        EXPECT_TRUE(installation.HostTypesLast(isThere ? "LE" : first)) << remembered;
    }
}

TEST(Launcher, RightClickSelectsAndOffersThePopup) {
    const Installation installation(5);
    SetEnvironmentVariableA("TesselTemp", ".");
    WriteFileBytes("UB.mnu", "T\r\nBilling\r\n>Post^P\r\nBackup^B\r\n^Core\\Programs\\CSBackup");
    const Launcher launcher;
    ASSERT_TRUE(installation.HostTypesLast("UB"));
    const HWND tree = launcher.Tree();
    SetWindowPos(launcher.Menu(), HWND_TOP, 0, 0, 0, 0, SWP_NOSIZE);
    SetForegroundWindow(launcher.Menu());
    const auto popupIsShown = [] { return IsWindowVisible(FindWindowA("#32768", nullptr)) != FALSE; };
    const auto chooseHelp = [&] {
        ASSERT_TRUE(Eventually(popupIsShown));
        RECT popup;
        POINT pointer;
        GetWindowRect(FindWindowA("#32768", nullptr), &popup);
        GetCursorPos(&pointer);
        EXPECT_NEAR(popup.top, pointer.y, TreeView_GetItemHeight(tree)) << "at the program";
        EXPECT_NEAR(popup.left, pointer.x, TreeView_GetItemHeight(tree));
        PressKey('H');
        EXPECT_NE(launcher.Texts("Warning").find("Option not available. In Developement."),
                  std::string::npos);
        EXPECT_FALSE(IsWindowEnabled(launcher.Menu()));
        launcher.Press("Warning", IDOK);
    };
    ClickRow(tree, 1, 0, rightClick);
    chooseHelp();
    EXPECT_TRUE(KeepsForeground(launcher.Menu()));
    PressKey(VK_APPS);
    chooseHelp();
    EXPECT_TRUE(KeepsForeground(launcher.Menu()));
    PressKey(VK_DOWN); // has no text
    PressKey(VK_APPS);
    ASSERT_TRUE(Eventually(popupIsShown));
    PressKey('P');
    EXPECT_EQ(GetWindow(launcher.Window("Properties"), GW_OWNER), launcher.Menu());
    EXPECT_TRUE(FileExists("Ini\\Core\\Programs\\CSBackup.ini"));
    launcher.Press("Properties", IDCANCEL);
    // A click that is handled when the pointer is elsewhere: the one after it is a click like any other.
    PointAt({0, 0});
    SendMessageA(tree, WM_RBUTTONDOWN, MK_RBUTTON, 0);
    ClickRow(tree, 0, 0, rightClick); // a heading: selected, without a popup
    EXPECT_TRUE(Eventually([&] { return TreeView_GetSelection(tree) == TreeView_GetRoot(tree); }));
    PressKey(VK_DOWN); // would go to a popup
    EXPECT_TRUE(Eventually([&] { return TreeView_GetSelection(tree) != TreeView_GetRoot(tree); }));
    EXPECT_FALSE(popupIsShown());
}

TEST(Launcher, RefusesToRunBesideAnOpenHost) {
    const std::string question = "Error: Fenn Already Open!! Please close before proceeding.\r\n\r\n"
                                 "Would you like us to show the Fenn Window Now?";
    const Installation installation(5);
    Start(std::filesystem::current_path() / "Fenn.exe");
    HWND host = nullptr;
    ASSERT_TRUE(Eventually([&] { return (host = FindWindowA("ZafWindow", "Obrin-01")) != nullptr; }));
    ShowWindow(host, SW_SHOWMINNOACTIVE);
    ShowWindow(host, SW_HIDE);
    for (const int answer : {IDNO, IDYES}) {
        WriteFileBytes("FennConfig.Sys", "x\r\n");
        const Launcher launcher;
        EXPECT_NE(launcher.Texts(hostIsOpen).find(question), std::string::npos);
        const HWND box = launcher.Window(hostIsOpen);
        EXPECT_TRUE(SendDlgItemMessageA(box, IDNO, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON);
        EXPECT_TRUE(HasIcon(box) && GetDlgItem(box, IDCANCEL) == nullptr);
        launcher.Press(hostIsOpen, answer);
        EXPECT_EQ(launcher.ExitCode(), 0);
        EXPECT_TRUE(ReadFileBytes("FennConfig.Sys").starts_with("Drive S,")) << "rewritten all the same";
        EXPECT_EQ(IsWindowVisible(host) && !IsIconic(host), answer == IDYES);
    }
}

TEST(Launcher, SecondMenuShowsTheFirstAndDoesNotHangWithIt) {
    const Installation installation(5);
    const Launcher first;
    ASSERT_TRUE(installation.HostTypesLast("UB"));
    EXPECT_TRUE(Launcher().Window(hostIsOpen)) << "comes first";
    installation.EndHost();
    ShowWindow(first.Menu(), SW_SHOWMINNOACTIVE);
    EXPECT_EQ(Launcher().ExitCode(), 0);
    EXPECT_TRUE(KeepsForeground(first.Menu()) && !IsIconic(first.Menu()));
    SetForegroundWindow(GetDesktopWindow());
    EXPECT_TRUE(Eventually([&] { return GetForegroundWindow() != first.Menu(); }));
    EXPECT_EQ(Launcher().ExitCode(), 0);
    EXPECT_TRUE(KeepsForeground(first.Menu()));
    first.Hang(true);
    EXPECT_EQ(Launcher().ExitCode(), 0);
    first.Hang(false);
    PostMessageA(first.Menu(), WM_CLOSE, 0, 0);
    EXPECT_EQ(first.ExitCode(), 0) << "commands to a host that is gone are lost";
}

TEST(Launcher, WaitsForASlowHostAndSaysSoWhenItTakesLong) {
    for (const auto& [variable, milliseconds, noticed] : {std::tuple{"FENN_WINDOW_DELAY_MS", "900", false},
                                                          {"FENN_START_DELAY_MS", "900", false},
                                                          {"FENN_WINDOW_DELAY_MS", "2800", true},
                                                          {"FENN_NEVER", "caption", false}}) {
        const Installation installation(5);
        SetEnvironmentVariableA(variable, milliseconds);
        // A window of any class will do.
        const char* caption = variable == std::string("FENN_NEVER") ? "Obrin-05" : "";
        const HWND station =
            CreateWindowExA(0, "STATIC", caption, 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
        CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 0, 0, station, nullptr, nullptr, nullptr);
        const ULONGLONG start = GetTickCount64();
        const Launcher launcher;
        ASSERT_TRUE(Eventually([&] { return !installation.Logged("process").empty(); }));
        const HWND menu = FindWindowA("ObrinMenu.frmMain", nullptr);
        EXPECT_EQ(TextOf(menu), "") << "a second menu must not find an empty window";
        EXPECT_FALSE(IsWindowVisible(menu));
        bool shown = false;
        EXPECT_TRUE(Eventually([&] {
            MSG message; // the launcher hides the window of ours
            PeekMessageA(&message, station, 0, 0, PM_NOREMOVE);
            shown = shown || launcher.Shown(noticeTitle);
            return IsWindowVisible(menu);
        }));
        DestroyWindow(station);
        if (noticed || GetTickCount64() - start < 2000) { // a busy machine makes the host slow by itself
            EXPECT_EQ(shown, noticed);
        }
        EXPECT_TRUE(Eventually([&] { return !launcher.Shown(noticeTitle); })) << "goes away by itself";
    }
}

TEST(Launcher, CanBeClosedByTheNoticeThatItWaits) {
    struct {
        const char* never; // what the host never does; without one there is no host
        void (*close)(HWND);
    } const cases[] = {
        {"window", [](HWND notice) { SendDlgItemMessageA(notice, IDCANCEL, BM_CLICK, 0, 0); }},
        {"caption", [](HWND notice) { PostMessageA(notice, WM_KEYDOWN, VK_ESCAPE, 0); }},
        {nullptr, [](HWND notice) { PostMessageA(notice, WM_SYSCOMMAND, SC_CLOSE, 0); }},
    };
    for (const auto& [never, close] : cases) {
        const Installation installation(5);
        RememberSystem("UB.mnu ");
        SetEnvironmentVariableA("FENN_NEVER", never);
        if (never == nullptr)
            DeleteFileA("Fenn.exe");
        const Launcher launcher;
        const std::string texts = launcher.Texts(noticeTitle);
        for (const std::string& part :
             {std::string("as soon as Fenn.exe shows its window Obrin-05."), CurrentFolder()})
            EXPECT_NE(texts.find(part), std::string::npos) << texts;
        EXPECT_EQ(texts.find("could not be started: " + PlatformText(ERROR_FILE_NOT_FOUND)) !=
                      std::string::npos,
                  never == nullptr)
            << texts;
        const HWND notice = launcher.Window(noticeTitle);
        if (never == nullptr || never == std::string("window")) {
            for (const BOOL waits : {FALSE, TRUE}) { // a box in front would have disabled it
                EnableWindow(notice, waits);
                SetForegroundWindow(GetDesktopWindow());
                EXPECT_EQ(Launcher().ExitCode(), 0) << "a second start";
                EXPECT_EQ(waits ? KeepsForeground(notice) : GetForegroundWindow() == notice, waits != FALSE);
            }
        }
        close(notice);
        EXPECT_EQ(launcher.ExitCode(), 0);
        EXPECT_EQ(installation.Logged("process").size(), never == nullptr ? 0U : 1U) << "no second host";
        ExpectRemembered("UB.mnu "); // no system was shown that could take its place
        EXPECT_FALSE(FileExists("Menu 5.txt"));
    }
}

TEST(Launcher, WaitsForItsNumberOrWithADamagedOneUntilItIsClosed) {
    for (const int number : {0, -7}) {
        const Installation installation(number);
        DeleteFileA("Corvel.dll"); // of which there would be an error at once
        const Launcher launcher;
        HWND menu = nullptr;
        ASSERT_TRUE(
            Eventually([&] { return (menu = FindWindowA("ObrinMenu.frmMain", nullptr)) != nullptr; }));
        Sleep(300); // in which it must not start the host
        EXPECT_EQ(IsWindowEnabled(menu), number != 0) << "asks only the one without a number";
        EXPECT_FALSE(launcher.Shown("ObrinMenu"));
        SendMessageA(menu, WM_SETTINGCHANGE, 0, 0); // without any control yet
        PostMessageA(menu, WM_CLOSE, 0, 0);
        EXPECT_EQ(launcher.ExitCode(), 0) << "and neither asks again nor starts it now";
    }
}

TEST(Launcher, EndsWithTheErrorOfAnEvent) {
    const Installation installation(5);
    WriteFileBytes("UB.mnu", "Title\rA^K\r");
    DeleteFileA("Updated.txt");
    CreateFolder("Updated.txt");
    WriteFileBytes("Ini", "no folder");
    SetEnvironmentVariableA("TesselTemp", ".");
    // In the menu window, and in a dialog.
    for (const auto& [command, text] :
         {std::pair{IDC_COMMAND1, "Updated.txt"}, {ID_TREE_PROPERTIES, "\\Ini"}}) {
        const Launcher launcher;
        ASSERT_TRUE(installation.HostTypesLast("UB"));
        PostMessageA(launcher.Menu(), WM_COMMAND, static_cast<WPARAM>(command), 0);
        EXPECT_NE(launcher.Texts("ObrinMenu").find(text), std::string::npos);
        EXPECT_TRUE(HasIcon(launcher.Window("ObrinMenu")) && !IsWindowEnabled(launcher.Menu()));
        SendMessageA(launcher.Menu(), WM_CLOSE, 0, 0); // of which nothing may come any more
        launcher.Press("ObrinMenu", IDOK);
        EXPECT_EQ(launcher.ExitCode(), 1);
        EXPECT_TRUE(installation.HostTypesLast("UB")) << "no orderly close";
        installation.EndHost();
    }
}

} // namespace
} // namespace obrin::test
