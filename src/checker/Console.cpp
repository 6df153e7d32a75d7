#include "checker/Console.h"

#include <conio.h>

#include <algorithm>
#include <array>
#include <string>

namespace obrin {

namespace {

constexpr std::size_t lineWidth = 60;

// Without the characters that would move the cursor or change colours; line ends stay.
std::wstring Characters(std::string_view text) {
    std::wstring wide(text.size(), L'\0');
    wide.resize(static_cast<std::size_t>(MultiByteToWideChar(
        CP_ACP, 0, text.data(), static_cast<int>(text.size()), wide.data(), static_cast<int>(wide.size()))));
    std::ranges::replace_if(
        wide,
        [](wchar_t character) {
            const bool isControl = character < L' ' || (character >= 0x7F && character < 0xA0);
            return isControl && character != L'\r' && character != L'\n';
        },
        L'?');
    return wide;
}

} // namespace

Stream::Stream(DWORD which)
    : handle(GetStdHandle(which)) {
    DWORD mode = 0;
    isConsole = GetConsoleMode(handle, &mode) != FALSE;
}

void Stream::Write(std::string_view text) const {
    DWORD done = 0;
    if (isConsole) {
        constexpr std::size_t most = 8192; // characters that every console takes at once
        const std::wstring characters = Characters(text);
        for (std::size_t place = 0; place < characters.size(); place += most) {
            const auto part = std::wstring_view(characters).substr(place, most);
            WriteConsoleW(handle, part.data(), static_cast<DWORD>(part.size()), &done, nullptr);
        }
        return;
    }
    while (!text.empty() && WriteFile(handle, text.data(), static_cast<DWORD>(text.size()), &done, nullptr))
        text.remove_prefix(done);
}

ProgressLine::~ProgressLine() {
    if (shown)
        console.Write("\r" + std::string(lineWidth, ' ') + "\r");
}

void ProgressLine::Show(std::size_t done, std::size_t all) {
    if (!console.IsConsole() || Clock::now() < due)
        return;
    std::string text = "Checked " + std::to_string(done) + " of " + std::to_string(all) + " menu files";
    text.resize(lineWidth, ' ');
    console.Write("\r" + text);
    due = Clock::now() + std::chrono::milliseconds(200);
    shown = true;
}

void KeepOwnConsoleOpen(const Stream& output) {
    std::array<DWORD, 2> programs{};
    if (!output.IsConsole() || GetConsoleProcessList(programs.data(), programs.size()) != 1)
        return;
    output.Write("\r\nPress any key to close this window.\r\n");
    _getch();
}

} // namespace obrin
