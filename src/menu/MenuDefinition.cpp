#include "menu/MenuDefinition.h"

#include "common/Lines.h"
#include "common/RunTimeError.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <unordered_set>

namespace obrin {

namespace {

constexpr char fieldEnd = '^';

std::string_view FirstField(std::string_view line, LeadByteTest isLeadByte) {
    return line.substr(0, FindCharacter(line, fieldEnd, isLeadByte));
}

class Parser {
public:
    Parser(std::string_view file, std::string_view name, LeadByteTest leadByteTest)
        : lines(file)
        , lineEnds(static_cast<std::size_t>(std::ranges::count(file, '\r')))
        , fileName(name)
        , isLeadByte(leadByteTest) {}

    MenuDefinition Parse() {
        const auto header = NextLine();
        if (!header)
            Fail("the file has no header line");
        MenuDefinition definition{.title = std::string(HeaderTitle(*header, isLeadByte)), .entries = {}};
        // All the room at once: the set of keys refers to the keys in the entries.
        definition.entries.reserve(std::min(lineEnds + 1, mostEntries));
        keys.reserve(definition.entries.capacity());
        while (const auto line = NextLine()) {
            if (definition.entries.size() == mostEntries)
                Fail("more entries than a menu can count");
            ++counter;
            definition.entries.push_back(ParseEntry(*line));
            CheckKey(definition.entries.back().key);
        }
        return definition;
    }

private:
    std::optional<std::string_view> NextLine() {
        ++lineNumber;
        return lines.Next();
    }

    MenuEntry ParseEntry(std::string_view line) {
        const auto depth = std::min(line.find_first_not_of('>'), line.size());
        line.remove_prefix(depth);
        const auto parent = ParentAt(depth);
        if (const auto separator = FindCharacter(line, fieldEnd, isLeadByte);
            separator != std::string_view::npos) {
            const auto key = FirstField(line.substr(separator + 1), isLeadByte); // more fields mean nothing
            return {
                .text = WithoutMarks(line.substr(0, separator)), .key = WithoutMarks(key), .parent = parent};
        }
        headings.resize(depth + 1); // headings deeper than this one are closed
        headings[depth] = counter;
        return {.text = std::string(line), .key = {}, .parent = parent};
    }

    static std::string WithoutMarks(std::string_view field) {
        std::string text(field);
        std::erase(text, '>');
        return text;
    }

    void CheckKey(const std::string& key) {
        if (key.empty())
            return;
        // Nodes are found by index or by key, so a number cannot be a key.
        if (key.find_first_not_of("0123456789") == std::string::npos)
            Fail("the key " + key + " is a number");
        if (!keys.insert(key).second)
            Fail("the key " + key + " is there already");
    }

    std::int16_t ParentAt(std::size_t depth) const {
        if (depth == 0)
            return 0;
        if (depth > headings.size() || headings[depth - 1] == 0)
            Fail("there is no heading one level above this entry");
        return headings[depth - 1];
    }

    [[noreturn]] void Fail(const std::string& reason) const {
        throw RunTimeError(PlatformError::InvalidData,
                           std::string(fileName) + ", line " + std::to_string(lineNumber) + ": " + reason);
    }

    static constexpr std::size_t mostEntries = std::numeric_limits<std::int16_t>::max();

    LineReader lines;
    std::size_t lineEnds; // at least as many as there are lines, but for a last one without
    std::string_view fileName;
    LeadByteTest isLeadByte;
    int lineNumber = 0;
    std::int16_t counter = 0;                 // of entry lines; the tree index of the entry at hand
    std::vector<std::int16_t> headings = {0}; // per depth the last heading's tree index, 0 for none
    std::unordered_set<std::string_view> keys;
};

} // namespace

bool IsMenuFileName(std::string_view name) {
    return name.size() > 4 && name.ends_with(".mnu");
}

std::string_view HeaderTitle(std::string_view headerLine, LeadByteTest isLeadByte) {
    return FirstField(headerLine, isLeadByte);
}

std::string_view SystemCode(std::string_view menuFileName, LeadByteTest isLeadByte) {
    return FirstCharacters(menuFileName, 2, isLeadByte);
}

MenuDefinition ParseMenuDefinition(std::string_view file, std::string_view fileName,
                                   LeadByteTest isLeadByte) {
    return Parser(file, fileName, isLeadByte).Parse();
}

} // namespace obrin
