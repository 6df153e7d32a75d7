// ObrinCheck: says what is wrong with an installation before its operators find out.

#include "checker/InstallationCheck.h"
#include "platform/Failure.h"
#include "platform/Handle.h"

#include <chrono>
#include <exception>
#include <future>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr int errorsFound = 1;
constexpr int notChecked = 2;

constexpr std::string_view usage =
    "usage: ObrinCheck [--tree] [FOLDER | FILE.mnu]...\r\n"
    "Says what is wrong with installations of the Obrin menu or with single menu files; without any, with "
    "the\r\n"
    "installation in the current folder. No file is changed.\r\n"
    "  --tree  first shows each system as an indented tree, with the programs' keys in brackets\r\n"
    "  --help  shows this text\r\n"
    "A line for each finding, in the order of files and lines:\r\n"
    "  FILE:LINE: error: TEXT    ends the menu, for some operators at least\r\n"
    "  FILE:LINE: warning: TEXT  does not unless the text says so, but is hardly what was meant\r\n"
    "What is about a file or folder as a whole has no LINE. The last line counts the findings.\r\n"
    "Whether files can be read and written is told for the user who runs this: run it as an operator. The\r\n"
    "settings of programs are checked where the variable TesselTemp leads to them.\r\n"
    "Exit code: 0 nothing or warnings only, 1 errors, 2 wrong arguments or nothing there to check.\r\n";

// Standard output or standard error: a console shows every character; a pipe gets bytes as the programs of a
// console read them, a file the code page's.
class Stream {
public:
    explicit Stream(DWORD which)
        : handle(GetStdHandle(which)) {
        DWORD mode = 0;
        isConsole = GetConsoleMode(handle, &mode) != FALSE;
        if (GetFileType(handle) == FILE_TYPE_PIPE)
            pipeCodePage = GetConsoleOutputCP();
    }

    bool IsConsole() const { return isConsole; }

    /// Whether the text arrives is not examined: there is nobody else to tell.
    void Write(std::string_view text) const {
        if (isConsole)
            WriteCharacters(Wide(text));
        else
            WriteBytes(pipeCodePage != 0 ? Narrow(Wide(text), pipeCodePage) : std::string(text));
    }

private:
    static std::wstring Wide(std::string_view text) {
        std::wstring wide(text.size(), L'\0');
        wide.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text.data(),
                                                                 static_cast<int>(text.size()), wide.data(),
                                                                 static_cast<int>(wide.size()))));
        return wide;
    }

    static std::string Narrow(std::wstring_view wide, UINT codePage) {
        std::string text(4 * wide.size(), '\0'); // more than any code page makes of a character
        text.resize(static_cast<std::size_t>(
            WideCharToMultiByte(codePage, 0, wide.data(), static_cast<int>(wide.size()), text.data(),
                                static_cast<int>(text.size()), nullptr, nullptr)));
        return text;
    }

    void WriteCharacters(std::wstring_view wide) const {
        constexpr std::size_t most = 8192; // of which every console takes that many at once
        for (std::size_t place = 0; place < wide.size(); place += most) {
            const auto part = wide.substr(place, most);
            DWORD done = 0;
            WriteConsoleW(handle, part.data(), static_cast<DWORD>(part.size()), &done, nullptr);
        }
    }

    void WriteBytes(std::string_view text) const {
        DWORD done = 0;
        while (!text.empty() &&
               WriteFile(handle, text.data(), static_cast<DWORD>(text.size()), &done, nullptr))
            text.remove_prefix(done);
    }

    HANDLE handle;
    bool isConsole;
    UINT pipeCodePage = 0; // none without a pipe, or without a console
};

// A line that is written over, for somebody who waits at a console.
class ProgressLine {
public:
    ProgressLine() = default;
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;
    ~ProgressLine() {
        if (shown)
            console.Write("\r" + std::string(width, ' ') + "\r");
    }

    void Show(std::size_t done, std::size_t all) {
        if (!console.IsConsole())
            return;
        std::string text =
            all == 0 ? "Looking at the installation"
                     : "Checked " + std::to_string(done) + " of " + std::to_string(all) + " menu files";
        text.resize(width, ' ');
        console.Write("\r" + text);
        shown = true;
    }

private:
    static constexpr std::size_t width = 60;
    Stream console{STD_ERROR_HANDLE};
    bool shown = false;
};

obrin::CheckResult CheckWithProgress(const std::vector<std::string>& paths, bool withTrees) {
    obrin::CheckProgress progress;
    auto check =
        std::async(std::launch::async, [&] { return obrin::CheckPaths(paths, withTrees, progress); });
    ProgressLine line;
    while (check.wait_for(std::chrono::seconds(1)) == std::future_status::timeout)
        line.Show(progress.done, progress.all);
    return check.get();
}

int Run(std::span<char*> arguments) {
    const Stream output(STD_OUTPUT_HANDLE);
    const Stream complaints(STD_ERROR_HANDLE);
    bool withTrees = false;
    std::vector<std::string> paths;
    for (const std::string argument : arguments) {
        if (argument == "--tree") {
            withTrees = true;
        } else if (argument == "--help" || argument == "/?") {
            output.Write(usage);
            return 0;
        } else if (argument.empty() || argument.front() == '-') {
            complaints.Write(usage);
            return notChecked;
        } else {
            paths.push_back(argument);
        }
    }
    if (paths.empty())
        paths.emplace_back(); // the current folder
    try {
        const auto [findings, trees, menuFiles] = CheckWithProgress(paths, withTrees);
        output.Write(trees);
        output.Write(obrin::Report(findings));
        output.Write(obrin::Summary(findings, menuFiles));
        return obrin::HasErrors(findings) ? errorsFound : 0;
    } catch (const obrin::RunTimeError& error) {
        complaints.Write(std::string("ObrinCheck: ") + error.what() + ": " +
                         obrin::PlatformText(error.Code()) + "\r\n");
    } catch (const std::exception& error) {
        complaints.Write(std::string("ObrinCheck: ") + error.what() + "\r\n");
    }
    return notChecked;
}

} // namespace

int main(int count, char** arguments) {
    // As the menu: nothing is loaded from the shared folder.
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
    return Run(std::span(arguments, static_cast<std::size_t>(count)).subspan(1));
}
