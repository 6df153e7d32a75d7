// ObrinCheck: says what is wrong with an installation before its operators find out.

#include "checker/Console.h"
#include "checker/PathChecks.h"
#include "platform/Failure.h"
#include "platform/Folder.h"
#include "platform/Workstation.h"
#include "version.h"

#include <string>
#include <string_view>
#include <vector>

namespace obrin {

namespace {

constexpr int errorsFound = 1;
constexpr int notChecked = 2;

constexpr const char* nameAndVersion = "ObrinCheck " OBRIN_VERSION_TEXT;

constexpr std::string_view usage =
    "usage: ObrinCheck [--tree] [FOLDER | FILE.mnu]...\r\n"
    "Says what is wrong with an installation of the Obrin menu, or with menu files (*.mnu for all of a "
    "folder).\r\n"
    "Without a path it checks the installation in the current folder. It changes no file.\r\n"
    "  --tree     first shows each system as an indented tree, with line numbers, and keys in brackets\r\n"
    "  --help     shows this text\r\n"
    "  --version  shows the version\r\n"
    "It prints a line for each finding, sorted by file and line:\r\n"
    "  FILE:LINE: error: PROBLEM: CONSEQUENCE; REMEDY    stops the menu, at least for some operators\r\n"
    "  FILE:LINE: warning: PROBLEM: CONSEQUENCE; REMEDY  stops the menu only if CONSEQUENCE says so\r\n"
    "A finding on a file or folder as a whole has no LINE. The last line counts the findings.\r\n"
    "Rights are tested for the user who runs it: run it as an operator. It also checks the variables\r\n"
    "Tessel and TesselTemp of this workstation.\r\n"
    "Exit code: 0 nothing or warnings only, 1 errors, 2 wrong options or a path that cannot be checked.\r\n";

// Splits a command line at blanks. A "\" in front of a quotation mark is part of the path: many quoted paths
// end with "\", and none holds a quotation mark.
std::vector<std::string> Split(std::string_view commandLine) {
    std::vector<std::string> parts;
    bool inPart = false, quoted = false;
    for (const char character : commandLine) {
        if (character == '"')
            quoted = !quoted;
        const bool isBlank = character == ' ' || character == '\t';
        if (isBlank && !quoted) {
            inPart = false;
            continue;
        }
        if (!inPart)
            parts.emplace_back();
        inPart = true;
        if (character != '"')
            parts.back() += character;
    }
    return parts;
}

void Complain(const std::string& text) {
    Write(STD_ERROR_HANDLE, "ObrinCheck: " + ReplaceControlCharacters(text) + "\r\n");
}

int Check(const std::vector<std::string>& paths, bool withTrees) {
    const CheckResult result = CheckPaths(paths, withTrees, ShowProgress);
    for (const std::string& failure : result.failures)
        Complain(failure);
    const std::string where = FullPath(paths.size() == 1 && !paths[0].empty() ? paths[0] : ".");
    Write(STD_OUTPUT_HANDLE, result.trees + Report(result.findings) +
                                 Summary(result.findings, result.menuFileCount,
                                         where + ", user " + LoginName() + ", code page " +
                                             std::to_string(GetACP()) + ", " + nameAndVersion));
    return !result.failures.empty() ? notChecked : HasErrors(result.findings) ? errorsFound : 0;
}

int Run() {
    bool withTrees = false;
    std::vector<std::string> paths;
    const auto arguments = Split(GetCommandLineA());
    for (std::size_t i = 1; i < arguments.size(); ++i) { // the first is the program
        const std::string& argument = arguments[i];
        if (argument == "--tree") {
            withTrees = true;
        } else if (argument == "--help" || argument == "/?") {
            Write(STD_OUTPUT_HANDLE, usage);
            return 0;
        } else if (argument == "--version") {
            Write(STD_OUTPUT_HANDLE, std::string(nameAndVersion) + "\r\n");
            return 0;
        } else if (argument.empty() || argument.front() == '-') {
            Complain('"' + argument + "\" is neither an option nor a path; --help shows the options");
            return notChecked;
        } else {
            paths.push_back(argument);
        }
    }
    if (paths.empty())
        paths.emplace_back();
    return Check(paths, withTrees);
}

} // namespace

} // namespace obrin

int main() {
    // As in the menu, Windows loads DLLs only from the system folder. SupportLibrary names the folders for
    // Corvel.dll itself.
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
    int exitCode = obrin::notChecked;
    try {
        exitCode = obrin::Run();
    } catch (const std::exception& error) {
        obrin::Complain(error.what());
    }
    obrin::KeepOwnConsoleOpen();
    return exitCode;
}
