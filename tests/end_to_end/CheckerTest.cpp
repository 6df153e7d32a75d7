// Faulty installations: what the checker says of each, and what the menu does in it.

#include "end_to_end/Installation.h"

#include <cstring>
#include <map>

namespace obrin::test {
namespace {

using namespace std::string_literals;

// Runs the checker in the current folder: its output or its complaints, through a pipe, and its exit code.
std::pair<std::string, DWORD> RunChecker(const std::string& arguments = "", bool complaints = false) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    HANDLE readEnd = nullptr, writeEnd = nullptr;
    CreatePipe(&readEnd, &writeEnd, &inherited, 0);
    const UniqueFile reader(readEnd);
    UniqueFile writer(writeEnd);
    const Started checker = Start(OwnProgram().replace_filename("ObrinCheck.exe"), arguments,
                                  complaints ? nullptr : writeEnd, complaints ? writeEnd : nullptr);
    writer.reset();
    std::string output;
    std::array<char, 4096> part{};
    for (DWORD got = 0; ReadFile(readEnd, part.data(), part.size(), &got, nullptr) && got > 0;)
        output.append(part.data(), got);
    OemToCharBuffA(output.data(), output.data(), static_cast<DWORD>(output.size())); // of its own console
    WaitForSingleObject(checker.process.get(), 5000);
    DWORD exitCode = STILL_ACTIVE;
    GetExitCodeProcess(checker.process.get(), &exitCode);
    return {output, exitCode};
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
    std::string texts = box == nullptr ? "" : launcher.Texts(box);
    if (box != nullptr)
        launcher.Press(box, IDOK);
    EXPECT_EQ(launcher.ExitCode(),
              texts.find("Current folder: " + CurrentFolder()) == std::string::npos ? 0 : 1);
    return texts;
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

constexpr bool is64 = sizeof(void*) == 8;

void Replace(std::string& text, std::string_view from, std::string_view to) {
    for (auto place = text.find(from); place != std::string::npos; place = text.find(from, place + to.size()))
        text.replace(place, from.size(), to);
}

// With the bytes that the list of faulty installations writes in other ways.
std::string Meant(std::string text) {
    Replace(text, "{user}", LoginName());
    Replace(text, "{bits}", is64 ? "32" : "64");
    Replace(text, "{own}", is64 ? "64" : "32");
    Replace(text, "{sharing}", PlatformText(ERROR_SHARING_VIOLATION));
    Replace(text, "{index}", PlatformText(ERROR_INVALID_INDEX));
    Replace(text, "\\r", "\r");
    Replace(text, "\\n", "\n");
    Replace(text, "\\0", "\0"s);
    for (auto place = text.find("\\x"); place != std::string::npos; place = text.find("\\x", place + 1))
        text.replace(place, 4, 1, static_cast<char>(std::stoi(text.substr(place + 2, 2), nullptr, 16)));
    for (auto place = text.find('{'); place != std::string::npos; place = text.find('{', place)) {
        const auto colon = text.find(':', place), end = text.find('}', place);
        std::string many;
        for (int count = std::stoi(text.substr(place + 1)); count > 0; --count)
            many += text.substr(colon + 1, end - colon - 1);
        text.replace(place, end + 1 - place, many);
    }
    return text;
}

// What the words of that list do to a file.
void Do(const std::string& word, const std::string& file, const std::string& text, UniqueFile& held) {
    const auto setAttributes = [&](DWORD attributes) { SetFileAttributesA(file.c_str(), attributes); };
    const auto patch = [&](std::string_view from, std::string_view to) {
        std::string bytes = ReadFileBytes(file);
        bytes.replace(bytes.find(from), from.size(), to);
        WriteFileBytes(file, bytes);
    };
    if (word == "write") {
        WriteFileBytes(file, text);
    } else if (word == "delete") {
        std::filesystem::remove(file);
    } else if (word == "folder") {
        CreateFolder(file);
    } else if (word == "readonly") {
        File(file, File::Use::ReadWrite).Close();
        setAttributes(FILE_ATTRIBUTE_READONLY);
    } else if (word == "hide") {
        setAttributes(text == "system" ? FILE_ATTRIBUTE_SYSTEM : FILE_ATTRIBUTE_HIDDEN);
    } else if (word == "hold" || word == "share") {
        const DWORD sharing = word == "share"         ? FILE_SHARE_READ | FILE_SHARE_WRITE
                              : text == "for writing" ? FILE_SHARE_READ
                                                      : 0;
        held.reset(CreateFileA(file.c_str(), GENERIC_READ | (word == "share" ? GENERIC_WRITE : 0U), sharing,
                               nullptr, OPEN_ALWAYS, 0, nullptr));
    } else if (word == "otherbits") {
        const auto machine = [](bool bits64) { return "PE\0\0"s + (bits64 ? "\x64\x86" : "\x4C\x01"); };
        patch(machine(is64), machine(!is64));
    } else if (word == "without") {
        patch(text, std::string(text.size(), '?'));
    } else if (word == "systems") {
        for (int i = 1; i < std::stoi(file); ++i)
            WriteFileBytes(std::to_string(i) + ".mnu", "T\r\n");
    } else if (word == "user") {
        WriteFileBytes("UserWSID.sys", ReadFileBytes("UserWSID.sys") +
                                           UserWsidRecord(file, static_cast<std::int16_t>(std::stoi(text))));
    } else if (word == "remember") {
        SupportLibrary().SetRegValue(HKEY_LOCAL_MACHINE, "Software\\Obrin", "LastSystem", file);
    } else {
        ADD_FAILURE() << "no word of the list: " << word;
    }
}

Lines Split(const std::string& text, const std::string& separator) {
    Lines parts;
    for (std::size_t start = 0, end = 0; end != std::string::npos; start = end + separator.size()) {
        end = text.find(separator, start);
        parts.push_back(text.substr(start, end - start));
    }
    return parts;
}

// The lines of a section of the list.
Lines Faulty(const std::string& section) {
    const HRSRC list = FindResourceA(nullptr, "FAULTY", RT_RCDATA);
    const std::string text(static_cast<const char*>(LockResource(LoadResource(nullptr, list))),
                           SizeofResource(nullptr, list));
    Lines lines;
    const auto start = text.find('[' + section + ']');
    for (const std::string& line : Split(text.substr(start, text.find("\n\n", start) - start), "\n")) {
        if (!line.empty() && line[0] != '[' && line[0] != ';')
            lines.push_back(line);
    }
    return lines;
}

// Makes each faulty installation of a section and compares: an error of the checker's, and the menu ends with
// one about the same file and line; none, and the menu does not.
void Compare(const std::string& section) {
    for (const std::string& line : Faulty(section)) {
        if (line.find("| remember ") != std::string::npos && !test::MayRememberSystem())
            continue;
        SCOPED_TRACE(line.substr(0, 200));
        const Installation installation(5);
        SetEnvironmentVariableA("TesselTemp", ".");
        UniqueFile held;
        std::string said; // by the menu's error
        Lines steps = Split(line, " | ");
        const std::string finding = Meant(steps.front());
        for (auto step = steps.begin() + 1; step != steps.end(); ++step) {
            const auto word = step->find(' ');
            if (step->starts_with("says ")) {
                said = Meant(step->substr(word + 1));
                continue;
            }
            // A name with a blank has nothing behind it.
            const auto name = step->starts_with("readonly") || step->starts_with("folder")
                                  ? std::string::npos
                                  : step->find(' ', word + 1);
            Do(step->substr(0, word), Meant(step->substr(word + 1, name - word - 1)),
               name == std::string::npos ? "" : Meant(step->substr(name + 1)), held);
        }
        const Files before = Everything();
        const auto [output, exitCode] = RunChecker();
        EXPECT_TRUE(Everything() == before) << "nothing is changed";
        EXPECT_NE(output.find(finding), std::string::npos) << output.substr(0, 2000);
        const std::string error = ErrorOfMenu();
        const auto place = output.find(": error: ");
        EXPECT_EQ(exitCode, place == std::string::npos ? 0U : 1U);
        EXPECT_EQ(error.empty(), place == std::string::npos) << error << output.substr(0, 2000);
        const std::string configuration = ".\\FennConfig.Sys";
        EXPECT_TRUE(!finding.starts_with("Core") || Everything()[configuration] == before.at(configuration))
            << "lost";
        EXPECT_TRUE(!finding.starts_with("Corvel") || installation.Logged("process").empty())
            << "left hidden";
        if (place != std::string::npos) {
            const auto start = output.rfind('\n', place) + 1, text = place + std::strlen(": error: ");
            std::string named = output.substr(start, place - start);
            if (const auto lineNumber = named.find(':'); lineNumber != std::string::npos) {
                named.replace(lineNumber, 1, ", line ");
                named = PlatformText(ERROR_INVALID_DATA) + "\r\n\r\n" + named + ": " +
                        output.substr(text, output.find_first_of(",:\r", text) - text);
            } else if (finding.starts_with("FennConfig.Sys: error: missing")) {
                named = "Config File Not found!"; // of which the menu tells before all others
            }
            EXPECT_NE(error.find(named), std::string::npos) << error;
            EXPECT_NE(error.find(said), std::string::npos) << error;
        }
        held.reset();
        for (const auto& [path, times] : Everything())
            SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    }
}

TEST(Checker, SaysOfMenuFilesWhatTheMenuDoes) {
    Compare("menu files");
}

TEST(Checker, SaysOfFilesAndFoldersWhatTheMenuDoes) {
    Compare("files and folders");
}

TEST(Checker, SaysOfSystemsUsersAndSettingsWhatTheMenuDoes) {
    Compare("systems, users and settings");
}

TEST(Checker, TakesFoldersFilesAndNothingElse) {
    const Installation installation(5);
    CreateFolder("empty");
    WriteFileBytes("other.txt", "T\r\n>A^K");
    WriteFileBytes("Local\\EE.mnu", "");
    WriteFileBytes("Local\\ZZ.mnu", "T\r\n>A^K");
    WriteFileBytes("Local\\Updated.txt", "0050");
    struct {
        const char* arguments;
        DWORD exitCode;
        const char* output; // somewhere in it
    } const cases[] = {
        {"empty", 1, "empty\\FennConfig.Sys: error: missing"},
        {"empty", 1, "3 errors, 1 warning in 0 menu files\r\n"},
        {"other.txt empty", 1, "4 errors, 2 warnings in 1 menu file\r\n"},
        {"Local", 1,
         "Local\\Obrin-User.url: warning: missing: Obrin User Website opens nothing; put the document "
         "there\r\n"
         "Local\\Updated.txt: warning: the last record is cut off: the next workstation that is updated "
         "overwrites it; cut the file to 3 bytes\r\nLocal\\ZZ.mnu:2: error: there is no heading"},
        {"UB.mnu .\\other.txt", 1, ".\\other.txt:2: error: there is no heading"},
        {"--tree Local\\EE.mnu", 1, "Local\\EE.mnu:\r\nLocal\\EE.mnu: error: the file has no header line"},
        {"Local/zz.MNU", 1, "1 error, 0 warnings in 1 menu file\r\n"},
        {"--tree other.txt", 1, "  A [K]\r\nother.txt: warning: the name does not end in .mnu"},
        {"UB.mnu", 0, "0 errors, 0 warnings in 1 menu file\r\n"},
        {".", 0,
         "TesselTemp: warning: this variable is not set here: the Properties dialog keeps settings in \\Ini "
         "of the drive at hand, or ends the menu with an error; set it on every workstation\r\n"},
        {"--tree UB.mnu", 0,
         "UB.mnu: Utility Billing\r\n  Billing\r\n    Post Payments [UB\\Programs\\Post]\r\n  Backup "
         "[Core\\Programs\\CSBackup]\r\n0 errors"},
        {"nowhere", 2, "ObrinCheck: nowhere: "},
        {"\"\"", 2, "usage: ObrinCheck [--tree] [FOLDER | FILE.mnu]...\r\n"},
        {"--trees", 2, "usage: ObrinCheck"},
        {"/?", 0, "usage: ObrinCheck"},
    };
    std::string help;
    for (const std::string& line : Faulty("help"))
        help += line + "\r\n";
    EXPECT_EQ(RunChecker("--help").first, help);
    for (const auto& [arguments, exitCode, output] : cases) {
        const auto [written, code] = RunChecker(arguments, exitCode == 2);
        EXPECT_EQ(code, exitCode) << arguments;
        EXPECT_NE(written.find(output), std::string::npos) << arguments << written;
    }
}

} // namespace
} // namespace obrin::test
