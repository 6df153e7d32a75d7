#include "menu/MenuDefinition.h"

#include <algorithm>
#include <forward_list>
#include <functional>
#include <limits>
#include <optional>

namespace obrin {

namespace {

constexpr char fieldEnd = '^';
constexpr char depthMark = '>';
constexpr std::int16_t mostEntries = std::numeric_limits<std::int16_t>::max();

std::string_view FirstField(std::string_view line, LeadByteTest isLeadByte) {
    return line.substr(0, FindCharacter(line, fieldEnd, isLeadByte));
}

// The keys of a file and the lines in which they stand. In two blocks: to make and free a node for each of
// thousands of keys would take longer than the rest of the parse.
class KeyLines {
public:
    // The line in which the key stands already, or else 0: then it stands in this one now.
    int Add(std::string_view key, int line) {
        if (2 * keys.size() >= places.size())
            Grow();
        const KeyLine added{.key = key, .line = line, .hash = HashOf(key)};
        std::uint16_t& place = PlaceOf(added);
        if (place != free)
            return keys[place - 1U].line;
        keys.push_back(added);
        place = static_cast<std::uint16_t>(keys.size()); // there are never more keys than entries
        return 0;
    }

private:
    struct KeyLine {
        std::string_view key;
        int line;
        std::uint32_t hash; // most keys of a file begin alike: comparing them is slow
    };

    static constexpr std::uint16_t free = 0;

    static std::uint32_t HashOf(std::string_view key) {
        return static_cast<std::uint32_t>(std::hash<std::string_view>{}(key));
    }

    // Where the key is, or the free place for it.
    std::uint16_t& PlaceOf(const KeyLine& wanted) {
        for (std::size_t place = wanted.hash;; ++place) {
            std::uint16_t& number = places[place & (places.size() - 1)];
            if (number == free)
                return number;
            const KeyLine& there = keys[number - 1U];
            if (there.hash == wanted.hash && there.key == wanted.key)
                return number;
        }
    }

    void Grow() {
        places.assign(std::max<std::size_t>(4 * places.size(), 256), free);
        for (std::size_t i = 0; i < keys.size(); ++i)
            PlaceOf(keys[i]) = static_cast<std::uint16_t>(i + 1);
    }

    std::vector<KeyLine> keys;
    std::vector<std::uint16_t> places; // a power of two; each with the number of a key, from 1, or free
};

// Texts that outlive their line, many to a block: a block for each would take longer than the parse.
class KeptTexts {
public:
    std::string_view Keep(std::string_view text) {
        if (blocks.empty() || blocks.front().capacity() - blocks.front().size() < text.size())
            blocks.emplace_front().reserve(std::max(text.size(), usualBlock));
        std::string& block = blocks.front();
        block += text;
        return std::string_view(block).substr(block.size() - text.size());
    }

private:
    static constexpr std::size_t usualBlock = 65536;
    std::forward_list<std::string> blocks; // none grows beyond the room that it was made with
};

class Parser {
public:
    Parser(LineReader file, LeadByteTest leadByteTest, MenuSink& taker)
        : lines(std::move(file))
        , isLeadByte(leadByteTest)
        , sink(taker) {}

    void Parse() {
        const auto header = NextLine();
        if (!header) {
            Fault(MenuFault::Kind::NoHeader, "the file has no header line");
            return;
        }
        sink.TakeHeader(*header);
        while (const auto line = NextLine()) {
            if (counter == mostEntries) {
                Fault(MenuFault::Kind::TooManyEntries, "more entries than a menu can count");
                return;
            }
            ++counter;
            ParseEntry(*line);
        }
    }

private:
    std::optional<std::string_view> NextLine() {
        ++lineNumber;
        return lines.Next();
    }

    void ParseEntry(std::string_view wholeLine) {
        const auto depth = std::min(wholeLine.find_first_not_of(depthMark), wholeLine.size());
        const auto parent = ParentAt(depth);
        MenuLine entry{.line = lineNumber,
                       .depth = parent == noParent ? 0 : depth,
                       .isProgram = false,
                       .text = wholeLine.substr(depth),
                       .key = {},
                       .keyIsCopy = false,
                       .wholeLine = wholeLine,
                       .isPlain = lines.IsPlain(),
                       .parent = parent};
        // In a plain line no byte is half of a character.
        const auto separator =
            lines.IsPlain() ? lines.MarkOfPlainLine() : FindCharacter(wholeLine, fieldEnd, isLeadByte);
        if (separator != std::string_view::npos) {
            entry.isProgram = true;
            entry.text = wholeLine.substr(depth, separator - depth);
            entry.key = FirstField(wholeLine.substr(separator + 1), isLeadByte); // more fields mean nothing
            const bool isMarked = entry.key.find(depthMark) != std::string_view::npos;
            entry.keyIsCopy = isMarked || !lines.LinesLast();
            if (entry.keyIsCopy)
                entry.key = ownKeys.Keep(isMarked ? WithoutDepthMarks(entry.key) : entry.key);
            CheckKey(entry.key);
        } else {
            // Headings deeper than this one are closed.
            headings.resize(std::min(depth, deepest) + 1, missing);
            headings.back() = counter;
        }
        sink.TakeEntry(entry);
    }

    void CheckKey(std::string_view key) {
        if (key.empty())
            return;
        // Nodes are found by index or by key, so a number cannot be a key.
        if (std::ranges::all_of(key, [](char byte) { return byte >= '0' && byte <= '9'; }))
            Fault(MenuFault::Kind::NumberAsKey, "the key " + std::string(key) + " is a number");
        if (const int first = keyLines.Add(key, lineNumber); first != 0)
            Fault(MenuFault::Kind::KeyTwice, "the key " + std::string(key) + " is there already", first);
    }

    std::int16_t ParentAt(std::size_t depth) {
        if (depth == 0)
            return noParent;
        const auto level = std::min(depth - 1, deepest);
        const auto heading = level < headings.size() ? headings[level] : missing;
        if (heading == missing)
            Fault(MenuFault::Kind::NoHeading, "there is no heading one level above this entry");
        return heading == missing ? noParent : heading;
    }

    void Fault(MenuFault::Kind kind, std::string reason, int firstLine = 0) {
        sink.TakeFault(
            {.kind = kind, .reason = std::move(reason), .line = lineNumber, .firstLine = firstLine});
    }

    static constexpr std::size_t deepest = mostEntries; // deeper than any entry with a heading can be
    static constexpr std::int16_t noParent = 0;
    static constexpr std::int16_t missing = 0; // no heading of this depth

    LineReader lines;
    LeadByteTest isLeadByte;
    MenuSink& sink;
    int lineNumber = 0;
    std::int16_t counter = 0;                       // of entry lines; the tree index of the entry at hand
    std::vector<std::int16_t> headings = {missing}; // per depth the last heading's tree index
    KeyLines keyLines;
    KeptTexts ownKeys; // marked ones, and those that outlive their line
};

// Keeps everything and ends with the first fault.
class DefinitionSink : public MenuSink {
public:
    DefinitionSink(std::string file, std::string_view name, LeadByteTest leadByteTest)
        : fileName(name)
        , isLeadByte(leadByteTest) {
        constexpr std::size_t usualLine = 32; // bytes; more room is taken as it is needed
        definition.entries.reserve(std::min<std::size_t>(file.size() / usualLine, mostEntries));
        definition.file = std::make_unique<const std::string>(std::move(file));
    }

    void TakeHeader(std::string_view line) override { definition.title = HeaderTitle(line, isLeadByte); }
    void TakeEntry(const MenuLine& entry) override {
        const bool isMarked = entry.isProgram && entry.text.find(depthMark) != std::string_view::npos;
        definition.entries.push_back({.text = isMarked ? Unmarked(entry.text) : entry.text,
                                      .key = entry.keyIsCopy ? Unmarked(entry.key) : entry.key,
                                      .parent = entry.parent});
    }
    void TakeFault(const MenuFault& fault) override {
        throw RunTimeError(PlatformError::InvalidData, std::string(fileName) + ", line " +
                                                           std::to_string(fault.line) + ": " + fault.reason);
    }

    MenuDefinition definition;

private:
    std::string_view Unmarked(std::string_view text) {
        return definition.unmarked.emplace_front(WithoutDepthMarks(text));
    }

    std::string_view fileName;
    LeadByteTest isLeadByte;
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

std::string WithoutDepthMarks(std::string_view text) {
    std::string unmarked(text);
    std::erase(unmarked, depthMark);
    return unmarked;
}

void ReadMenuDefinition(std::string_view file, LeadByteTest isLeadByte, MenuSink& sink) {
    Parser(LineReader(file, fieldEnd), isLeadByte, sink).Parse();
}

void ReadMenuDefinition(MoreText file, LeadByteTest isLeadByte, MenuSink& sink) {
    Parser(LineReader(std::move(file), fieldEnd), isLeadByte, sink).Parse();
}

MenuDefinition ParseMenuDefinition(std::string file, std::string_view fileName, LeadByteTest isLeadByte) {
    DefinitionSink sink(std::move(file), fileName, isLeadByte);
    ReadMenuDefinition(*sink.definition.file, isLeadByte, sink);
    return std::move(sink.definition);
}

} // namespace obrin
