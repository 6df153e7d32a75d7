#include "menu/MenuDefinition.h"

#include "common/Lines.h"
#include "common/RunTimeError.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <unordered_set>

namespace obrin {

namespace {

class Parser {
public:
    Parser(std::string_view file, std::string_view name)
        : lines(file)
        , fileName(name) {}

    MenuDefinition Parse() {
        const auto header = NextLine();
        if (!header)
            Fail(PlatformError::EndOfFile, "the file has no header line");
        MenuDefinition definition{.title = std::string(HeaderTitle(*header)), .entries = {}};
        while (const auto line = NextLine()) {
            if (counter == std::numeric_limits<std::int16_t>::max())
                Fail(PlatformError::ArithmeticOverflow, "more entries than a menu can count");
            ++counter;
            definition.entries.push_back(ParseEntry(*line));
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
        if (line.find('^') != std::string_view::npos)
            return ProgramEntry(line, parent);
        headings.resize(depth + 1); // headings deeper than this one are closed
        headings[depth] = counter;
        return {.text = std::string(line), .key = {}, .parent = parent};
    }

    MenuEntry ProgramEntry(std::string_view line, std::int16_t parent) {
        std::string cleaned(line);
        std::erase(cleaned, '>');
        const auto textEnd = cleaned.find('^');
        const auto keyEnd = cleaned.find('^', textEnd + 1); // further fields are nobody's
        MenuEntry entry{.text = cleaned.substr(0, textEnd),
                        .key = cleaned.substr(textEnd + 1, keyEnd - textEnd - 1),
                        .parent = parent};
        if (entry.key.empty())
            return entry;
        // Nodes are found by index or by key, so a number cannot be a key.
        if (entry.key.find_first_not_of("0123456789") == std::string::npos)
            Fail(PlatformError::InvalidName, "the key " + entry.key + " is a number");
        if (!keys.insert(entry.key).second)
            Fail(PlatformError::AlreadyExists, "the key " + entry.key + " is there already");
        return entry;
    }

    std::int16_t ParentAt(std::size_t depth) const {
        if (depth == 0)
            return 0;
        if (depth > headings.size() || headings[depth - 1] == 0)
            Fail(PlatformError::InvalidIndex, "there is no heading one level above this entry");
        return headings[depth - 1];
    }

    [[noreturn]] void Fail(PlatformError error, const std::string& reason) const {
        throw RunTimeError(error,
                           std::string(fileName) + ", line " + std::to_string(lineNumber) + ": " + reason);
    }

    LineReader lines;
    std::string_view fileName;
    int lineNumber = 0;
    std::int16_t counter = 0;                 // of entry lines; the tree index of the entry at hand
    std::vector<std::int16_t> headings = {0}; // per depth the last heading's tree index, 0 for none
    std::unordered_set<std::string> keys;
};

} // namespace

bool IsMenuFileName(std::string_view name) {
    return name.size() > 4 && name.ends_with(".mnu");
}

std::string_view HeaderTitle(std::string_view headerLine) {
    return headerLine.substr(0, headerLine.find('^'));
}

std::string_view SystemCode(std::string_view menuFileName) {
    return menuFileName.substr(0, 2);
}

MenuDefinition ParseMenuDefinition(std::string_view file, std::string_view fileName) {
    return Parser(file, fileName).Parse();
}

} // namespace obrin
