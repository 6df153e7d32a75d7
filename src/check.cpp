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
    "Says what is wrong with installations of the Obrin menu or with single menu files (*.mnu for all of "
    "a\r\n"
    "folder); without any, with the installation in the current folder. No file is changed.\r\n"
    "  --tree     first shows each system as an indented tree, with line numbers, and keys in brackets\r\n"
    "  --help     shows this text\r\n"
    "  --version  shows the version\r\n"
    "A line for each finding, in the order of files and lines:\r\n"
    "  FILE:LINE: error: PROBLEM: CONSEQUENCE; REMEDY    stops the menu, for some operators at least\r\n"
    "  FILE:LINE: warning: PROBLEM: CONSEQUENCE; REMEDY  does not, unless the consequence says so\r\n"
    "What is about a file or folder as a whole has no LINE. The last line counts the findings.\r\n"
    "Whether files can be read and written is told for the user who runs this: run it as an operator. The\r\n"
    "variables Tessel and TesselTemp are those of this workstation.\r\n"
    "Exit code: 0 nothing or warnings only, 1 errors, 2 wrong arguments or a path that cannot be "
    "checked.\r\n";

struct Arguments {
    bool tree = false;
    bool help = false;
    bool version = false;
    std::string wrong; // the first argument that is neither an option nor a path
    std::vector<std::string> paths;
};

// A quotation mark begins or ends a quotation also behind a "\\": no path holds one, but many that are quoted
// end in "\\".
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

Arguments ParseCommandLine(std::string_view commandLine) {
    Arguments arguments;
    const auto parts = Split(commandLine);
    for (std::size_t i = 1; i < parts.size(); ++i) { // the first is the program
        const std::string& part = parts[i];
        if (part == "--tree")
            arguments.tree = true;
        else if (part == "--help" || part == "/?")
            arguments.help = true;
        else if (part == "--version")
            arguments.version = true;
        else if (!part.empty() && part.front() != '-')
            arguments.paths.push_back(part);
        else if (arguments.wrong.empty())
            arguments.wrong = '"' + part + '"';
    }
    return arguments;
}

int Check(const Arguments& arguments, const Stream& output, const Stream& complaints) {
    const auto paths = arguments.paths.empty() ? std::vector<std::string>(1) : arguments.paths;
    CheckResult result;
    {
        ProgressLine line;
        result = CheckPaths(paths, arguments.tree,
                            [&](std::size_t done, std::size_t all) { line.Show(done, all); });
    }
    output.Write(result.trees);
    output.Write(Report(result.findings));
    for (const std::string& failure : result.failures)
        complaints.Write("ObrinCheck: " + failure + "\r\n");
    const std::string where = FullPath(paths.size() == 1 && !paths[0].empty() ? paths[0] : ".");
    output.Write(Summary(result.findings, result.menuFiles,
                         where + ", user " + LoginName() + ", code page " + std::to_string(GetACP()) + ", " +
                             nameAndVersion));
    return !result.failures.empty() ? notChecked : HasErrors(result.findings) ? errorsFound : 0;
}

int Run() {
    const Stream output(STD_OUTPUT_HANDLE);
    const Stream complaints(STD_ERROR_HANDLE);
    int exitCode = notChecked;
    try {
        const Arguments arguments = ParseCommandLine(GetCommandLineA());
        if (!arguments.wrong.empty()) {
            complaints.Write("ObrinCheck: " + OneLine(arguments.wrong) +
                             " is neither an option nor a path; --help shows the options\r\n");
        } else if (arguments.help || arguments.version) {
            output.Write(arguments.help ? usage : std::string(nameAndVersion) + "\r\n");
            exitCode = 0;
        } else {
            exitCode = Check(arguments, output, complaints);
        }
    } catch (const RunTimeError& error) {
        complaints.Write(std::string("ObrinCheck: ") + error.what() + ": " + PlatformText(error.Code()) +
                         "\r\n");
    } catch (const std::exception& error) {
        complaints.Write(std::string("ObrinCheck: ") + error.what() + "\r\n");
    }
    KeepOwnConsoleOpen(output);
    return exitCode;
}

} // namespace

} // namespace obrin

int main() {
    // As the menu: nothing is loaded from the shared folder.
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
    return obrin::Run();
}
