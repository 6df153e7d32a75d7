// Runs the checker as a program, and compares what it predicts for faulty installations with what the menu
// does there.

#include "checker/PathChecks.h"
#include "common/Installation.h"
#include "end_to_end/FaultyInstallations.h"
#include "end_to_end/Installation.h"
#include "end_to_end/MenuTrial.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace obrin::test {
namespace {

// Runs the checker in the current folder. Returns its standard output and error as one text, and its exit
// code.
std::pair<std::string, DWORD> RunChecker(const std::string& arguments) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    HANDLE readEnd = nullptr, writeEnd = nullptr;
    CreatePipe(&readEnd, &writeEnd, &inherited, 0);
    const UniqueHandle reader(readEnd);
    UniqueHandle writer(writeEnd);
    const StartedProgram checker =
        Start(OwnProgram().replace_filename("ObrinCheck.exe"), arguments, writeEnd, writeEnd);
    writer.reset();
    std::string output;
    std::array<char, 4096> part{};
    for (DWORD got = 0; ReadFile(readEnd, part.data(), part.size(), &got, nullptr) && got > 0;)
        output.append(part.data(), got);
    WaitForSingleObject(checker.process.get(), 5000);
    DWORD exitCode = STILL_ACTIVE;
    GetExitCodeProcess(checker.process.get(), &exitCode);
    return {output, exitCode};
}

// An installation in which the checker finds nothing.
class SoundInstallation : public Installation {
public:
    SoundInstallation()
        : Installation(5) {
        for (const char* name : {"Help\\UB", "Tessel\\Exe", "Temp"})
            std::filesystem::create_directories(name);
        for (const char* file :
             {"Help\\Index.html", "Help\\UB\\Index.html", "Help\\Obrin-Web.url", "Help\\BetterIdea.url",
              "Obrin-User.url", "Tessel\\Exe\\Tessel.Exe", "Tessel\\Exe\\Sweeper.Exe",
              "Tessel\\Exe\\Notebox.Exe", "Tessel\\Exe\\ShowAllFenns.Exe", "Tessel\\Exe\\Glass.Exe"})
            WriteFileBytes(file, "x");
        SetEnvironmentVariableA("TesselTemp", (CurrentFolder() + "\\Temp").c_str());
    }
    ~SoundInstallation() { ReleaseFiles(); }
};

using FileList = std::map<std::string, std::pair<std::filesystem::file_time_type, std::uintmax_t>>;

// Returns all files and folders below the current folder, with times and sizes.
FileList ListFiles() {
    FileList files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator("."))
        files[entry.path().string()] = {entry.last_write_time(),
                                        entry.is_directory() ? 0 : entry.file_size()};
    return files;
}

// Replaces the path of the current folder by HERE.
std::string ReplaceCurrentFolder(std::string text) {
    const std::string folder = CurrentFolder();
    if (const auto place = text.find(folder); place != std::string::npos)
        text.replace(place, folder.size(), "HERE");
    return text;
}

// Drops consequences and remedies, and sorts by place and problem.
std::vector<ExpectedFinding> Simplify(const Findings& findings) {
    std::vector<ExpectedFinding> result;
    for (const auto& [effect, place, trouble, consequence] : findings)
        result.push_back(
            {ReplaceCurrentFolder(place.file) + (place.line == 0 ? "" : ':' + std::to_string(place.line)),
             effect, ReplaceCurrentFolder(trouble.problem)});
    std::ranges::sort(
        result, {}, [](const ExpectedFinding& finding) { return std::tie(finding.place, finding.problem); });
    return result;
}

Findings Check() {
    return CheckPaths({""}, false, [](std::size_t, std::size_t) {}).findings;
}

bool KeepsConfiguration() {
    try {
        return ReadFileBytes(hostConfigurationFile).find("Files 120") != std::string::npos;
    } catch (const RunTimeError&) {
        return true; // the file is missing or held open on purpose
    }
}

void CompareWithMenu(const std::vector<FaultyInstallation>& rows) {
    for (const auto& [name, makeFault, expected, runsCheckerOnly] : rows) {
        SCOPED_TRACE(name);
        const SoundInstallation installation;
        makeFault();
        const FileList before = ListFiles();
        const Findings findings = Check();
        EXPECT_EQ(before, ListFiles()) << "the checker must change nothing";
        EXPECT_EQ(Simplify(findings), expected);
        if (runsCheckerOnly)
            continue;
        const Effect predicted = PredictedEffect(findings);
        Effect done = TryMenu(predicted);
        // The menu shows the first system when it starts, so a fault in that one ends every start.
        if (predicted == Effect::EndsShownSystem && done == Effect::EndsEveryStart)
            done = predicted;
        EXPECT_EQ(done, predicted);
        EXPECT_TRUE(KeepsConfiguration()) << "the menu must keep the line Files 120";
    }
}

TEST(Checker, FindsNothingInASoundInstallation) {
    const SoundInstallation installation;
    EXPECT_EQ(Report(Check()), "");
    EXPECT_EQ(TryMenu(Effect::None), Effect::None);
}

TEST(Checker, PredictsTheEffectOfFaultyMenuFiles) {
    CompareWithMenu(FaultyMenuFiles());
}

TEST(Checker, PredictsTheEffectOfRememberedSystems) {
    if (!MayRememberSystem())
        GTEST_SKIP() << "this user may not write the menu's key of the registry";
    CompareWithMenu(RememberedSystems());
}

TEST(Checker, PredictsTheEffectOfFaultyFiles) {
    CompareWithMenu(FaultyFiles());
}

TEST(Checker, PredictsTheEffectOfFaultySettings) {
    CompareWithMenu(FaultySettings());
}

void ExpectLine(const Findings& findings, const std::string& line) {
    const std::string report = Report(findings);
    EXPECT_NE(report.find(line + "\r\n"), std::string::npos) << "Missing: " << line << "\nReport:\n"
                                                             << report;
}

TEST(Checker, PredictsTheEffectOfTooManySystems) {
    const SoundInstallation installation;
    for (int i = 1; i <= 99; ++i) // 100 with UB.mnu
        WriteFileBytes(std::to_string(i) + ".mnu", "T");
    const Findings findings = Check();
    ExpectLine(findings,
               ".mnu: error: at most 99 menu files are allowed, and this is one more: the menu ends "
               "with an error at every start; remove those that nobody uses");
    EXPECT_EQ(TryMenu(PredictedEffect(findings)), Effect::EndsEveryStart);
}

TEST(Checker, WarnsOfAFolderWithoutAShortForm) {
    const SoundInstallation installation;
    std::string deep = "deep";
    while (FullPath(deep).size() <= 200) // a short form has at most 163 characters
        deep += "\\deeper";
    std::filesystem::create_directories(deep);
    ExpectLine(CheckPaths({deep}, false, [](std::size_t, std::size_t) {}).findings,
               deep + ": warning: this folder has no short form without blanks and commas: the host may not "
                      "find it by the drive line of FennConfig.Sys; move the installation to a short path "
                      "without them");
}

TEST(Checker, WarnsIfNoFolderForSettingsIsSet) {
    const SoundInstallation installation;
    SetEnvironmentVariableA(temporaryFolderVariable, nullptr);
    ExpectLine(Check(), "TesselTemp: warning: this variable is not set here: the Properties dialog keeps "
                        "settings in \\Ini of the current drive, or ends the menu with an error where that "
                        "cannot be written; set it on every workstation");
}

TEST(Checker, NamesTheVariableOnceForAShareThatCannotBeReached) {
    const SoundInstallation installation;
    SetEnvironmentVariableA(temporaryFolderVariable, "\\\\localhost\\missing\\Temp");
    const Findings findings = Check();
    ASSERT_EQ(findings.size(), 1U) << Report(findings);
    EXPECT_EQ(findings[0].place.file, temporaryFolderVariable);
}

TEST(Checker, WarnsThatTheMenuIsFromTheOtherArchive) {
    const std::string otherBits =
        sizeof(void*) == 8 ? "C:\\Windows\\SysWOW64\\cmd.exe" : "C:\\Windows\\Sysnative\\cmd.exe";
    if (!FileExists(otherBits))
        GTEST_SKIP() << "this computer runs only programs with as many bits as this test";
    const SoundInstallation installation;
    WriteFileBytes(menuProgram, ReadFileBytes(otherBits));
    ExpectLine(Check(),
               "ObrinMenu.exe: warning: not from the same archive as this ObrinCheck (32 or 64 bits): "
               "Corvel.dll has not been checked; use the ObrinCheck that came with ObrinMenu.exe");
}

TEST(Menu, StartsNoHostWithoutItsLibrary) {
    const SoundInstallation installation;
    DeleteFileA(supportLibraryFile);
    EXPECT_EQ(TryMenu(Effect::EndsEveryStart), Effect::EndsEveryStart);
    EXPECT_EQ(installation.Logged("process"), Lines{});
}

TEST(Checker, AcceptsOnlyFoldersMenuFilesAndOptions) {
    const SoundInstallation installation;
    CreateFolder("empty");
    WriteFileBytes("other.txt", "T");
    WriteFileBytes("Local\\EE.mnu", "");
    WriteFileBytes("Local\\zz.MNU", "T\r\n>A^K");
    const std::string missing = PlatformText(ERROR_FILE_NOT_FOUND),
                      invalid = PlatformText(ERROR_INVALID_DATA);
    struct {
        std::string arguments;
        DWORD exitCode;
        std::string output; // a part of it
    } const cases[] = {
        {"", 0, "0 errors, 0 warnings in 1 menu file (" + CurrentFolder() + ", user " + LoginName()},
        {"empty", 1, "empty\\FennConfig.Sys: error: missing"},
        {"\"empty\\\" UB.mnu", 1, " in 1 menu file ("},
        {"UB.mnu", 0, "0 errors, 0 warnings in 1 menu file ("},
        {"*.mnu", 0, "0 errors, 0 warnings in 1 menu file ("},
        {"Local\\*.mnu", 1, "Local\\EE.mnu: error: the file has no header line"},
        {"Local/zz.MNU", 1, "Local/zz.MNU:2: error: there is no heading"},
        {"Local\\EE.mnu nowhere", 2, "Local\\EE.mnu: error: the file has no header line"},
        {"nowhere UB.mnu", 2, "ObrinCheck: nowhere: " + missing},
        {"other.txt", 2, "ObrinCheck: other.txt is no menu file: its name must end in .mnu: " + invalid},
        {"--tree UB.mnu", 0,
         "UB.mnu: Utility Billing\r\n    2:  Billing\r\n    3:    Post Payments [UB\\Programs\\Post]\r\n"
         "    4:  Backup [Core\\Programs\\CSBackup]\r\n0 errors"},
        {"\"\"", 2, "ObrinCheck: \"\" is neither an option nor a path; --help shows the options\r\n"},
        {"--trees", 2, "ObrinCheck: \"--trees\" is neither an option nor a path"},
        {"--help", 0, "usage: ObrinCheck [--tree] [FOLDER | FILE.mnu]...\r\n"},
        {"/?", 0, "usage: ObrinCheck"},
        {"--version", 0, "ObrinCheck 2."},
    };
    for (const auto& [arguments, exitCode, output] : cases) {
        const auto [written, code] = RunChecker(arguments);
        EXPECT_EQ(code, exitCode) << arguments;
        EXPECT_NE(written.find(output), std::string::npos) << arguments << '\n' << written;
    }
}

} // namespace
} // namespace obrin::test
