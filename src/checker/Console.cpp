#include "checker/Console.h"

#include <conio.h>

#include <algorithm>
#include <array>
#include <cwctype>
#include <string>

namespace obrin {

namespace {

bool IsConsole(DWORD stream) {
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(stream), &mode) != FALSE;
}

// Replaces control characters except line ends by "?", because they could move the cursor or change colours.
std::wstring ToConsoleText(std::string_view text) {
    std::wstring wide(text.size(), L'\0');
    wide.resize(static_cast<std::size_t>(MultiByteToWideChar(
        CP_ACP, 0, text.data(), static_cast<int>(text.size()), wide.data(), static_cast<int>(wide.size()))));
    std::ranges::replace_if(
        wide,
        [](wchar_t character) {
            return std::iswcntrl(character) != 0 && character != L'\r' && character != L'\n';
        },
        L'?');
    return wide;
}

} // namespace

void Write(DWORD stream, std::string_view text) {
    const HANDLE handle = GetStdHandle(stream);
    DWORD written = 0;
    if (!IsConsole(stream)) {
        WriteFile(handle, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
        return;
    }
    constexpr std::size_t partLength = 8192; // one call may refuse more than 64 KB
    const std::wstring characters = ToConsoleText(text);
    for (std::size_t start = 0; start < characters.size(); start += partLength) {
        const auto part = std::wstring_view(characters).substr(start, partLength);
        WriteConsoleW(handle, part.data(), static_cast<DWORD>(part.size()), &written, nullptr);
    }
}

void ShowProgress(std::size_t done, std::size_t all) {
    static const ULONGLONG start = GetTickCount64();
    if (GetTickCount64() - start > 1000 && IsConsole(STD_ERROR_HANDLE))
        Write(STD_ERROR_HANDLE, "\rChecked " + std::to_string(done) + " of " + std::to_string(all) +
                                    " menu files" + (done == all ? "\r\n" : ""));
}

void KeepOwnConsoleOpen() {
    std::array<DWORD, 2> programs{};
    if (!IsConsole(STD_OUTPUT_HANDLE) || GetConsoleProcessList(programs.data(), programs.size()) != 1)
        return;
    Write(STD_OUTPUT_HANDLE, "\r\nPress any key to close this window.\r\n");
    _getch();
}

} // namespace obrin
