#include "menu/MenuDefinition.h"

#include "common/Installation.h"
#include "common/Lines.h"
#include "common/RunTimeError.h"

#include <algorithm>
#include <limits>
#include <unordered_map>

namespace obrin {

namespace {

constexpr char fieldSeparator = '^';
constexpr char depthMark = '>';
constexpr std::size_t maxEntries = std::numeric_limits<std::int16_t>::max();

std::string_view FirstField(std::string_view line, LeadByteTest isLeadByte) {
    return line.substr(0, FindCharacter(line, fieldSeparator, isLeadByte));
}

std::string WithoutDepthMarks(std::string_view text) {
    std::string unmarked(text);
    std::erase(unmarked, depthMark);
    return unmarked;
}

bool IsNumber(std::string_view key) {
    return std::ranges::all_of(key, [](char byte) { return byte >= '0' && byte <= '9'; });
}

class Parser {
public:
    explicit Parser(LeadByteTest leadByteTest)
        : isLeadByte(leadByteTest) {}

    MenuDefinition Parse(std::string_view file) {
        LineReader lines(file);
        const auto header = lines.Next();
        if (!header) {
            AddFault(MenuFault::Kind::NoHeader, "the file has no header line");
            return std::move(definition);
        }
        definition.title = HeaderTitle(*header, isLeadByte);
        while (const auto line = lines.Next()) {
            ++lineNumber;
            if (definition.entries.size() == maxEntries) {
                AddFault(MenuFault::Kind::TooManyEntries, "more than 32,767 entries");
                break;
            }
            AddEntry(*line);
        }
        return std::move(definition);
    }

private:
    void AddEntry(std::string_view line) {
        const auto depth = std::min(line.find_first_not_of(depthMark), line.size());
        line.remove_prefix(depth);
        MenuEntry entry;
        entry.depth = depth;
        entry.parent = ParentAt(depth);
        const auto separator = FindCharacter(line, fieldSeparator, isLeadByte);
        entry.isProgram = separator != std::string_view::npos;
        if (entry.isProgram) {
            entry.text = WithoutDepthMarks(line.substr(0, separator));
            entry.key = WithoutDepthMarks(FirstField(line.substr(separator + 1), isLeadByte));
            CheckKey(entry.key);
        } else {
            entry.text = line;
            // Forgets deeper headings. No heading can be below more than maxEntries others.
            headings.resize(std::min(depth, maxEntries) + 1, noHeading);
            headings.back() = static_cast<std::int16_t>(definition.entries.size() + 1);
        }
        definition.entries.push_back(std::move(entry));
    }

    std::int16_t ParentAt(std::size_t depth) {
        if (depth == 0)
            return noHeading;
        const std::int16_t heading = depth <= headings.size() ? headings[depth - 1] : noHeading;
        if (heading == noHeading)
            AddFault(MenuFault::Kind::NoHeading, "there is no heading one level above this entry");
        return heading;
    }

    void CheckKey(const std::string& key) {
        if (key.empty())
            return;
        // A key that is a number could be mistaken for a tree index.
        if (IsNumber(key))
            AddFault(MenuFault::Kind::NumberAsKey, "the key " + key + " is a number");
        const auto [first, isNew] = lineOfKey.try_emplace(key, lineNumber);
        if (!isNew)
            AddFault(MenuFault::Kind::KeyTwice, "the key " + key + " is already used", first->second);
    }

    void AddFault(MenuFault::Kind kind, std::string text, int firstLine = 0) {
        definition.faults.push_back(
            {.kind = kind, .line = lineNumber, .text = std::move(text), .firstLine = firstLine});
    }

    static constexpr std::int16_t noHeading = 0;

    LeadByteTest isLeadByte;
    int lineNumber = 1;
    std::vector<std::int16_t> headings = {noHeading}; // tree index of the last heading at each depth
    std::unordered_map<std::string, int> lineOfKey;
    MenuDefinition definition;
};

} // namespace

bool IsMenuFileName(std::string_view name) {
    const std::string_view ending = menuFileExtension;
    return name.size() > ending.size() && name.ends_with(ending);
}

std::string_view HeaderTitle(std::string_view headerLine, LeadByteTest isLeadByte) {
    return FirstField(headerLine, isLeadByte);
}

std::string_view SystemCode(std::string_view menuFileName, LeadByteTest isLeadByte) {
    return FirstCharacters(menuFileName, 2, isLeadByte);
}

MenuDefinition ParseMenuDefinition(std::string_view file, LeadByteTest isLeadByte) {
    return Parser(isLeadByte).Parse(file);
}

void ThrowFirstFault(const MenuDefinition& definition, const std::string& fileName) {
    if (definition.faults.empty())
        return;
    const MenuFault& fault = definition.faults.front();
    throw RunTimeError(PlatformError::InvalidData,
                       fileName + ", line " + std::to_string(fault.line) + ": " + fault.text);
}

} // namespace obrin
