#include "common/Text.h"

#include <algorithm>

namespace obrin {

namespace {

// A lead byte at the end of the text counts as a character.
std::size_t NextCharacter(std::string_view text, std::size_t position, LeadByteTest isLeadByte) {
    return std::min(position + (isLeadByte != nullptr && isLeadByte(text[position]) ? 2 : 1), text.size());
}

} // namespace

std::size_t FindCharacter(std::string_view text, char character, LeadByteTest isLeadByte, std::size_t start) {
    if (isLeadByte == nullptr)
        return text.find(character, start);
    for (auto i = start; i < text.size(); i = NextCharacter(text, i, isLeadByte)) {
        if (text[i] == character)
            return i;
    }
    return std::string_view::npos;
}

std::size_t FindLastCharacter(std::string_view text, char character, LeadByteTest isLeadByte) {
    if (isLeadByte == nullptr)
        return text.rfind(character);
    // Searches from the start, because a backward search cannot recognise second bytes.
    auto last = std::string_view::npos;
    for (std::size_t i = 0; (i = FindCharacter(text, character, isLeadByte, i)) < text.size(); ++i)
        last = i;
    return last;
}

std::string_view FirstCharacters(std::string_view text, std::size_t count, LeadByteTest isLeadByte) {
    std::size_t end = 0;
    for (; count > 0 && end < text.size(); --count)
        end = NextCharacter(text, end, isLeadByte);
    return text.substr(0, end);
}

std::string AsciiLowerCase(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return lower;
}

std::string_view TrimBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string RemoveAccessKeyMarks(std::string_view caption) {
    std::string shown;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && ++i == caption.size())
            break; // an "&" at the end marks nothing
        shown += caption[i];
    }
    return shown;
}

std::string DoubleAmpersands(std::string_view text) {
    std::string doubled;
    for (const char character : text)
        doubled.append(character == '&' ? 2 : 1, character);
    return doubled;
}

std::string EnsureTrailingBackslash(std::string path, LeadByteTest isLeadByte) {
    if (path.empty() || FindLastCharacter(path, '\\', isLeadByte) != path.size() - 1)
        path += '\\';
    return path;
}

} // namespace obrin
