// Faulty installations: what the checker says of each, and what the menu does in it.

#include "end_to_end/Installation.h"

#include "platform/File.h"
#include "platform/Folder.h"
#include "platform/Handle.h"
#include "platform/Workstation.h"
#include "resources/Ids.h"
#include "startup/UserRecords.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <map>

namespace obrin::test {
namespace {

using namespace std::string_literals;

struct Checked {
    std::string output;
    DWORD exitCode = 99;
};

// Runs the checker in the current folder, its output through a pipe.
Checked RunChecker(const std::string& arguments = "") {
    std::array<char, MAX_PATH> tests{};
    GetModuleFileNameA(nullptr, tests.data(), tests.size());
    std::string line = '"' + std::filesystem::path(tests.data()).replace_filename("ObrinCheck.exe").string() +
                       "\" " + arguments;
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    HANDLE readEnd = nullptr, writeEnd = nullptr;
    CreatePipe(&readEnd, &writeEnd, &inherited, 0);
    const UniqueFile reader(readEnd);
    UniqueFile writer(writeEnd);
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = startup.hStdError = writeEnd;
    PROCESS_INFORMATION started{};
    if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr, nullptr,
                        &startup, &started))
        return {.output = "the checker does not start"};
    writer.reset();
    const UniqueFile process(started.hProcess), thread(started.hThread);
    Checked checked;
    std::array<char, 4096> part{};
    for (DWORD got = 0; ReadFile(readEnd, part.data(), part.size(), &got, nullptr) && got > 0;)
        checked.output.append(part.data(), got);
    WaitForSingleObject(process.get(), 5000);
    GetExitCodeProcess(process.get(), &checked.exitCode);
    return checked;
}

// The menu is started, told to run a program and closed: the text of the error that ends it, empty without.
std::string ErrorOfMenu() {
    const Launcher launcher;
    const auto errorBox = [&] {
        return launcher.Shown("ObrinMenu") != nullptr ? "ObrinMenu"
               : launcher.Shown("Error!") != nullptr  ? "Error!"
                                                      : nullptr;
    };
    EXPECT_TRUE(
        Eventually([&] { return errorBox() != nullptr || launcher.Shown("Obrin System Menu") != nullptr; }));
    if (errorBox() == nullptr) {
        const HWND menu = launcher.Menu();
        PostMessageA(menu, WM_COMMAND, IDC_COMMAND1, 0);
        PostMessageA(menu, WM_CLOSE, 0, 0);
        EXPECT_TRUE(Eventually([&] { return errorBox() != nullptr || !IsWindow(menu); }));
    }
    const char* box = errorBox();
    return box == nullptr ? "" : launcher.Texts(box);
}

using Files = std::map<std::string, std::pair<std::filesystem::file_time_type, std::uintmax_t>>;

// Everything in the current folder, with times and sizes.
Files Everything() {
    Files files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator("."))
        files[entry.path().string()] = {entry.last_write_time(),
                                        entry.is_directory() ? 0 : entry.file_size()};
    return files;
}

void SetAttributes(const std::string& path, DWORD attributes) {
    EXPECT_TRUE(SetFileAttributesA(path.c_str(), attributes)) << path;
}

void RememberSystem(const char* name) {
    RegSetKeyValueA(HKEY_LOCAL_MACHINE, "Software\\Obrin", "LastSystem", REG_SZ, name,
                    static_cast<DWORD>(std::strlen(name)));
}

struct Fault {
    std::function<void()> make;
    std::string finding; ///< somewhere in what the checker says
};

// Makes each faulty installation and compares: an error of the checker's, and the menu ends with one about
// the same file and line; none, and the menu does not.
void Compare(
    const std::vector<Fault>& faults, const std::function<void()>& undo = [] {}) {
    for (const auto& [make, finding] : faults) {
        SCOPED_TRACE(finding);
        const Installation installation(5);
        make();
        const Files before = Everything();
        const auto [output, exitCode] = RunChecker();
        EXPECT_TRUE(Everything() == before) << "nothing is changed";
        EXPECT_NE(output.find(finding), std::string::npos) << output.substr(0, 2000);
        const std::string error = ErrorOfMenu();
        const auto place = output.find(": error: ");
        EXPECT_EQ(exitCode, place == std::string::npos ? 0U : 1U);
        EXPECT_EQ(error.empty(), place == std::string::npos) << error << output.substr(0, 2000);
        if (place != std::string::npos && error.find("Config File Not found!") == std::string::npos) {
            const auto start = output.rfind('\n', place) + 1;
            std::string named = output.substr(start, place - start);
            if (const auto line = named.find(':'); line != std::string::npos)
                named.replace(line, 1, ", line ");
            EXPECT_NE(error.find(named), std::string::npos) << error;
        }
        undo();
        for (const auto& [path, times] : Everything())
            SetAttributes(path, FILE_ATTRIBUTE_NORMAL);
    }
}

Fault MenuFile(const std::string& contents, std::string finding) {
    return {[=] { WriteFileBytes("UB.mnu", contents); }, std::move(finding)};
}

std::string Many(int entries) {
    std::string file = "T";
    for (int i = 0; i < entries; ++i)
        file += "\rA^";
    return file;
}

TEST(Checker, SaysOfMenuFilesWhatTheMenuDoes) {
    const std::string noHeading = "error: there is no heading one level above this entry";
    std::string deep = "T\r\n";
    for (std::size_t depth = 0; depth < 21; ++depth)
        deep += std::string(depth, '>') + "H\r\n";
    const std::string none = "0 errors, 0 warnings in 1 menu file";
    const auto pages = [] {
        for (const char* folder : {"Help", "Help\\UB"})
            CreateFolder(folder);
        for (const char* page : {"Help\\Index.html", "Help\\UB\\Index.html", "Help\\Obrin-Web.url",
                                 "Help\\BetterIdea.url", "Obrin-User.url"})
            WriteFileBytes(page, "");
    };
    Compare({
        {pages, none},
        MenuFile("", "UB.mnu: error: the file has no header line"),
        MenuFile("T\r\n>A^K", "UB.mnu:2: " + noHeading),
        MenuFile("T\r\nA\r\n>>B^K", "UB.mnu:3: " + noHeading),
        MenuFile("T\r\nA\r\n>>>B", "UB.mnu:3: " + noHeading),
        MenuFile("T\r\nA\r\n>B\r\nC\r\n>>D^K", "UB.mnu:5: " + noHeading),
        MenuFile("T\r\nA^K\r\n>B^L", "UB.mnu:3: " + noHeading),
        MenuFile("T\r\n>", "UB.mnu:2: " + noHeading),
        MenuFile("T\r\n" + std::string(40000, '>') + "A", "UB.mnu:2: " + noHeading),
        MenuFile("T\r\n>A^1\r\nB^1", "UB.mnu:3: error: the key 1 is there already, in line 2"),
        MenuFile("T\r\nA^K\r\nB^K", "UB.mnu:3: error: the key K is there already, in line 2"),
        MenuFile("T\rA^K\rH\r>B^K", "UB.mnu:4: error: the key K is there already, in line 2"),
        MenuFile("T\r\nA^K>L\r\nB^>KL^x", "UB.mnu:3: error: the key KL is there already"),
        MenuFile("T\r\n^K\r\n^K", "UB.mnu:3: error: the key K is there already"),
        MenuFile("T\r\nA\0^K\r\nB^K"s, "UB.mnu:3: error: the key K is there already"),
        MenuFile("T\r\nA^0012^x", "UB.mnu:2: error: the key 0012 is a number"),
        MenuFile(Many(32768), "UB.mnu:32769: error: more entries than a menu can count"),
        MenuFile(Many(32767), "0 errors"),
        MenuFile("T\r\nA^k\r\nB^K", "0 errors"),
        MenuFile("T\r\nA^\r\nB^\r\nC^K\x1A", "0 errors"),
        MenuFile("T", "0 errors"),
        MenuFile(std::string(1'000'000, 'x') + "\rA^K", "0 errors"),
        MenuFile("T\nA^K\n", "UB.mnu:1: warning: a line end of LF alone"),
        MenuFile("T\r\nA^K\nB^K\r\nC^L", "UB.mnu:2: warning: a line end of LF alone"),
        MenuFile("\xEF\xBB\xBFT\r\nA^K", "UB.mnu:1: warning: a byte-order mark of UTF-8"),
        MenuFile("\xFF\xFET\0\r\0\n\0A\0"s, "UB.mnu:1: warning: a byte-order mark of UTF-16"),
        MenuFile("T\r\nA\xC3\xA4^K", "UB.mnu:2: warning: text in UTF-8"),
        MenuFile("\r\nA^K", "UB.mnu:1: warning: the title is empty"),
        MenuFile("  ^T\r\nA^K", "UB.mnu:1: warning: the title is empty"),
        MenuFile("T\r\nA^..\\K", "UB.mnu:2: warning: the key ..\\K holds \"..\""),
        MenuFile("T\r\nA^UB\\..\\..\\K", "UB.mnu:2: warning: the key UB\\..\\..\\K holds \"..\""),
        MenuFile("T\r\nA^C:\\K", "UB.mnu:2: warning: the key C:\\K names a drive"),
        MenuFile("T\r\nA^ K\r\nB^K", "UB.mnu:2: warning: the key  K begins or ends with a blank"),
        MenuFile("T\r\nA^K \r\nB^K", "UB.mnu:2: warning: the key K  begins or ends with a blank"),
        MenuFile("T\r\nA\r\nB^K", "UB.mnu:2: warning: the heading A holds no program"),
        MenuFile("T\r\nA\r\n>B\r\n>>C^K\r\n>D\r\n", "UB.mnu:5: warning: the heading D holds no program"),
        MenuFile("T\r\nA^K\r\n\r\n", "UB.mnu:3: warning: an empty line"),
        MenuFile(deep + std::string(21, '>') + "A^K", "UB.mnu:22: warning: more than 20 levels"),
    });
}

TEST(Checker, SaysOfTheRestWhatTheMenuDoes) {
    UniqueFile held;
    const auto hold = [&](const char* file) {
        return [&held, file] {
            held.reset(CreateFileA(file, GENERIC_READ, 0, nullptr, OPEN_ALWAYS, 0, nullptr));
        };
    };
    const auto write = [](const char* file, const std::string& contents) {
        return [=] { WriteFileBytes(file, contents); };
    };
    // But for the configuration, which the menu itself looks at, root may write read-only files under Wine.
    const auto readOnly = [](const char* file) {
        return [=] {
            File(file, File::Use::ReadWrite).Close();
            SetAttributes(file, FILE_ATTRIBUTE_READONLY);
        };
    };
    const auto folderInstead = [](const char* file) {
        return [=] {
            DeleteFileA(file);
            CreateFolder(file);
        };
    };
    const auto remove = [](const char* file) { return [=] { DeleteFileA(file); }; };
    const auto patch = [](const std::string& from, const std::string& to) {
        return [=] {
            std::string library = ReadFileBytes("Corvel.dll");
            library.replace(library.find(from), from.size(), to);
            WriteFileBytes("Corvel.dll", library);
        };
    };
    const auto systems = [](int count) {
        return [=] {
            for (int i = 1; i < count; ++i)
                WriteFileBytes(std::to_string(i) + ".mnu", "T\r\n");
        };
    };
    const auto alsoUser = [](const std::string& user, int wsid) {
        return [=] {
            WriteFileBytes("UserWSID.sys", ReadFileBytes("UserWSID.sys") +
                                               UserWsidRecord(user, static_cast<std::int16_t>(wsid)));
        };
    };
    const auto settings = [](const std::function<void()>& make) {
        return [=] {
            CreateFolder("Ini");
            CreateFolder("Ini\\Core");
            CreateFolder("Ini\\Core\\Programs");
            SetEnvironmentVariableA("TesselTemp", ".");
            make();
        };
    };
    const char* backup = ".\\Ini\\Core\\Programs\\CSBackup.ini";
    constexpr bool is64 = sizeof(void*) == 8;
    const char *x86 = "\x4C\x01", *x64 = "\x64\x86";
    const std::string cannot = "error: cannot be written (";
    Compare(
        {
            {remove("FennConfig.Sys"), "FennConfig.Sys: error: missing"},
            {folderInstead("FennConfig.Sys"), "FennConfig.Sys: error: missing"},
            {readOnly("FennConfig.Sys"), "FennConfig.Sys: " + cannot},
            {hold("FennConfig.Sys"), "FennConfig.Sys: " + cannot},
            {[] { RemoveDirectoryA("Core"); }, "Core: error: this folder is missing"},
            {[] {
                 RemoveDirectoryA("Core");
                 WriteFileBytes("Core", "");
             },
             "Core: error: this folder is missing"},
            {readOnly("Core\\TempOut.tmp"), ""},
            {folderInstead("Core\\TempOut.tmp"), "Core\\TempOut.tmp: " + cannot},
            {remove("Corvel.dll"), "Corvel.dll: error: missing"},
            {write("Corvel.dll", "text"), "Corvel.dll: error: no library of Windows"},
            {patch("PE\0\0"s + (is64 ? x64 : x86), "PE\0\0"s + (is64 ? x86 : x64)),
             std::string("Corvel.dll: error: made for ") + (is64 ? "32 bits" : "64 bits")},
            {patch("SetRegValue", "SetRegVALUE"), "Corvel.dll: error: without the routine SetRegValue"},
            {write("Startup.bmp", "no picture"), "Startup.bmp: error: no picture"},
            {write("Startup.bmp", ""), "Startup.bmp: error: no picture"},
            {[] {
                 WriteFileBytes("Startup.bmp", "no picture");
                 SetAttributes("Startup.bmp", FILE_ATTRIBUTE_HIDDEN);
             },
             "0 errors"},
            {[] { CreateFolder("Startup.bmp"); }, "0 errors"},
            {readOnly("UserWSID.sys"), ""},
            {folderInstead("UserWSID.sys"), "UserWSID.sys: " + cannot},
            {hold("UserWSID.sys"), "UserWSID.sys: " + cannot},
            {readOnly("Updated.txt"), ""},
            {folderInstead("Updated.txt"), "Updated.txt: " + cannot},
            {hold("Updated.txt"), "Updated.txt: " + cannot},
            {readOnly("Menu 5.txt"), ""},
            {folderInstead("Menu 5.txt"), "Menu 5.txt: " + cannot},
            {remove("UB.mnu"), ".: error: there is no menu file"},
            {folderInstead("UB.mnu"), ".: error: there is no menu file"},
            {[] { SetAttributes("UB.mnu", FILE_ATTRIBUTE_HIDDEN); },
             "UB.mnu: warning: hidden or a system file"},
            {[] {
                 DeleteFileA("UB.mnu");
                 WriteFileBytes("UB.MNU", "T");
             },
             "UB.MNU: warning: the name does not end in .mnu in small letters"},
            {hold("UB.mnu"), "UB.mnu: error: cannot be read ("},
            {systems(100), ".mnu: error: the hundredth menu file"},
            {systems(99), "0 errors"},
            {write("ZZ.mnu", ""), "ZZ.mnu: error: the file has no header line"},
            {[] {
                 WriteFileBytes("ZZ.mnu", "T\r\n>A");
                 RememberSystem("ZZ.mnu");
             },
             "ZZ.mnu:2: error: there is no heading"},
            {write("UBx.mnu", "T\r\nA^K"), "UBx.mnu: warning: the system code UB is that of UB.mnu too"},
            {write("ub2.mnu", "T\r\nA^K"), "ub2.mnu: warning: the system code ub is that of UB.mnu too"},
            {write("ZZ.Mnu", "T"), "ZZ.Mnu: warning: the name does not end in .mnu"},
            {[] {}, "Help\\UB\\Index.html: warning: missing"},
            {[] {}, "Obrin-User.url: warning: missing"},
            {alsoUser("bert", 0),
             "UserWSID.sys: warning: record 2 gives the user bert the workstation number 0"},
            {alsoUser("bert", 5), "UserWSID.sys: warning: the users "},
            {alsoUser(LoginName(), 5),
             "UserWSID.sys: warning: the user " + LoginName() + " has the records 1 and 2"},
            {write("Updated.txt", "0050"), "Updated.txt: warning: the last record is cut off"},
            {settings(write(backup, "Lines")),
             std::string(backup) + ": warning: a program's settings, line 1: there is no \"=\""},
            {settings([=] { CreateFolder(backup); }),
             std::string(backup) + ": warning: a folder of this name"},
            {settings(write(backup, "Lines=1\r\n")), "0 errors, 5 warnings"},
        },
        [&] { held.reset(); });
    SetEnvironmentVariableA("TesselTemp", nullptr);
}

TEST(Checker, TakesFoldersFilesAndNothingElse) {
    const Installation installation(5);
    CreateFolder("empty");
    WriteFileBytes("other.txt", "T\r\n>A^K");
    struct {
        const char* arguments;
        DWORD exitCode;
        const char* output; // somewhere in it
    } const cases[] = {
        {"empty", 1, "empty\\FennConfig.Sys: error: missing"},
        {"UB.mnu .\\other.txt", 1, ".\\other.txt:2: error: there is no heading"},
        {"other.txt", 1, "other.txt: warning: the name does not end in .mnu"},
        {"UB.mnu", 0, "0 errors, 0 warnings in 1 menu file\r\n"},
        {"--tree UB.mnu", 0,
         "UB.mnu: Utility Billing\r\n  Billing\r\n    Post Payments [UB\\Programs\\Post]\r\n  Backup "
         "[Core\\Programs\\CSBackup]\r\n0 errors"},
        {"nowhere", 2, "ObrinCheck: nowhere: "},
        {"*.none", 2, "ObrinCheck: *.none: "},
        {"--trees", 2, "usage: ObrinCheck"},
        {"--help", 0, "usage: ObrinCheck"},
    };
    for (const auto& [arguments, exitCode, output] : cases) {
        const auto checked = RunChecker(arguments);
        EXPECT_EQ(checked.exitCode, exitCode) << arguments;
        EXPECT_NE(checked.output.find(output), std::string::npos) << arguments << checked.output;
    }
}

} // namespace
} // namespace obrin::test
