#include "checker/MenuFileRules.h"

#include "common/Lines.h"

#include <algorithm>
#include <array>
#include <vector>

namespace obrin {

namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

// Returns whether text looks like UTF-8. Text beyond ASCII in another code page hardly ever does.
bool IsUtf8(std::string_view text) {
    std::size_t more = 0; // bytes that the current character still needs
    for (const char letter : text) {
        const auto byte = static_cast<unsigned char>(letter);
        const bool continues = byte >= 0x80 && byte < 0xC0;
        // C0 and C1 would spell ASCII in two bytes.
        if (continues != (more > 0) || byte == 0xC0 || byte == 0xC1 || byte > 0xF4)
            return false;
        more = continues ? more - 1 : byte < 0x80 ? 0 : byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : 3;
    }
    return more == 0;
}

bool IsAscii(std::string_view text) {
    return std::ranges::all_of(text, [](char byte) { return byte >= 0; });
}

const char* RemedyFor(MenuFault::Kind kind) {
    switch (kind) {
    case MenuFault::Kind::NoHeader:
        return "write the system's title into its first line";
    case MenuFault::Kind::NoHeading:
        return "remove a \">\", or put the missing heading above";
    case MenuFault::Kind::NumberAsKey:
        return "name the program with its folder";
    case MenuFault::Kind::KeyTwice:
        return "remove one of the two";
    case MenuFault::Kind::TooManyEntries:
        return "divide the system into several; from this line on, nothing has been checked";
    }
    return "";
}

// Splits a path as Windows does, which takes "/" as a separator too.
std::vector<std::string_view> SplitPath(std::string_view key, LeadByteTest isLeadByte) {
    std::vector<std::string_view> parts;
    for (std::size_t start = 0; start <= key.size();) {
        const auto end =
            std::min({FindCharacter(key, '\\', isLeadByte, start), key.find('/', start), key.size()});
        parts.push_back(TrimBlanks(key.substr(start, end - start)));
        start = end + 1;
    }
    return parts;
}

// An ending changes nothing: "NUL.txt" is the device too.
bool NamesDevice(std::string_view part) {
    const std::string name = AsciiLowerCase(TrimBlanks(part.substr(0, part.find('.'))));
    constexpr std::array<std::string_view, 6> devices{"con", "prn", "aux", "nul", "conin$", "conout$"};
    const bool isPort = name.size() == 4 && (name.starts_with("com") || name.starts_with("lpt")) &&
                        name[3] >= '1' && name[3] <= '9';
    return isPort || std::ranges::find(devices, name) != devices.end();
}

struct MenuFileCheck {
    const std::string& path;
    std::string_view bytes;
    const MenuDefinition& definition;
    const CodePage& codePage;
    Findings findings = {};

    Findings Run() {
        CheckHeader();
        CheckBytes();
        CheckHeadings();
        CheckKeys();
        CheckFaults();
        return std::move(findings);
    }

    void Warn(int line, Trouble trouble, std::string consequence) {
        Add(findings, Effect::None, {path, line}, std::move(trouble), std::move(consequence));
    }

    std::string Shortened(std::string_view text) const { return Shorten(text, codePage.isLeadByte); }

    void CheckHeader() {
        if (bytes.empty())
            return;
        const bool utf16 = bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
        if (utf16 || bytes.starts_with(utf8Mark))
            Warn(1,
                 {std::string("a byte-order mark of ") + (utf16 ? "UTF-16" : "UTF-8"),
                  codePage.isUtf8 ? "save the file as UTF-8 without it" : "save the file as ANSI text"},
                 "the menu takes it for letters of the title");
        if (TrimBlanks(definition.title).empty())
            Warn(1, {"the title is empty", "write it in front of the first \"^\""},
                 "the System List shows this system without a name");
    }

    // Reports only the first line with each problem.
    void CheckBytes() {
        int loneLineFeed = 0, utf8 = 0, notUtf8 = 0; // the first line of each kind; 0 for none
        LineReader lines(bytes.substr(bytes.starts_with(utf8Mark) ? utf8Mark.size() : 0));
        for (int number = 1; const auto line = lines.Next(); ++number) {
            const auto keepFirst = [number](int& first) { first = first == 0 ? number : first; };
            if (line->find('\n') != std::string_view::npos)
                keepFirst(loneLineFeed);
            if (!IsAscii(*line))
                keepFirst(IsUtf8(*line) ? utf8 : notUtf8);
        }
        if (loneLineFeed != 0)
            Warn(loneLineFeed, {"a line end of LF alone", "save the file with line ends of CR LF"},
                 "the menu reads on as if there were none");
        const char* wrongLetters = "the menu shows the wrong letters";
        if (codePage.isUtf8 && notUtf8 != 0)
            Warn(notUtf8,
                 {"text that is not UTF-8", "save the file as UTF-8, the code page of this workstation"},
                 wrongLetters);
        if (!codePage.isUtf8 && utf8 != 0 && notUtf8 == 0)
            Warn(utf8, {"text in UTF-8", "save the file as ANSI text"}, wrongLetters);
    }

    void CheckHeadings() {
        const auto& entries = definition.entries;
        // By tree index: whether the node is a program or has one below it. Index 0 is the root of the tree.
        std::vector<bool> used(entries.size() + 1);
        used[0] = true;
        for (std::size_t i = entries.size(); i-- > 0;) {
            if (entries[i].isProgram || used[i + 1]) {
                used[i + 1] = true;
                used[static_cast<std::size_t>(entries[i].parent)] = true;
            }
        }
        for (std::size_t i = 0; i < entries.size(); ++i) {
            const auto parent = static_cast<std::size_t>(entries[i].parent);
            if (IsEmptyLine(i))
                Warn(LineOfEntry(i), {"an empty line", "remove it"},
                     "the menu shows it as a heading without text");
            else if (!used[i + 1] && used[parent]) // only the outermost of nested headings
                Warn(LineOfEntry(i),
                     {"the heading \"" + Shortened(entries[i].text) + "\" holds no program",
                      "put programs below it, or remove it"},
                     "operators open it in vain");
        }
    }

    bool IsEmptyLine(std::size_t index) const {
        const MenuEntry& entry = definition.entries[index];
        return !entry.isProgram && entry.text.empty() && entry.depth == 0;
    }

    void CheckKeys() {
        for (std::size_t i = 0; i < definition.entries.size(); ++i) {
            if (!definition.entries[i].key.empty())
                CheckKey(LineOfEntry(i), definition.entries[i].key);
        }
    }

    void CheckKey(int line, const std::string& key) {
        const std::string theKey = "the key " + Shortened(key);
        const auto parts = SplitPath(key, codePage.isLeadByte);
        if (std::ranges::find(parts, "..") != parts.end())
            Warn(line, {theKey + " holds \"..\"", "write the program's path without it"},
                 "the program's settings file may lie outside of the folder for settings");
        if (const auto reason = FindFileNameFault(key, codePage.isLeadByte); !reason.empty())
            Add(findings, Effect::EndsProperties, {path, line},
                {theKey + ' ' + reason,
                 "name the program by its path below the host's folder, in letters and digits"});
        if (TrimBlanks(key).size() != key.size())
            Warn(line, {theKey + " begins or ends with a blank", "remove it"},
                 "the blank is typed into the host too");
    }

    void CheckFaults() {
        for (const MenuFault& fault : definition.faults) {
            std::string problem = Shortened(fault.text);
            if (fault.kind == MenuFault::Kind::KeyTwice)
                problem += " in line " + std::to_string(fault.firstLine);
            if (const int line = EmptyLineAbove(fault); line != 0)
                problem += ": the empty line " + std::to_string(line) + " has closed the headings above it";
            if (fault.kind == MenuFault::Kind::NoHeader) // the System List needs the header of every file
                Add(findings, Effect::EndsEveryStart, {path}, {problem, RemedyFor(fault.kind)});
            else
                Add(findings, Effect::EndsShownSystem, {path, fault.line}, {problem, RemedyFor(fault.kind)});
        }
    }

    // Returns the number of the empty line that has closed the headings above the faulty entry; 0 if the
    // heading is missing for another reason.
    int EmptyLineAbove(const MenuFault& fault) const {
        if (fault.kind != MenuFault::Kind::NoHeading)
            return 0;
        for (auto i = static_cast<std::size_t>(fault.line - LineOfEntry(0)); i-- > 0;) {
            const MenuEntry& entry = definition.entries[i];
            if (!entry.isProgram && entry.depth == 0)
                return IsEmptyLine(i) ? LineOfEntry(i) : 0;
        }
        return 0;
    }
};

} // namespace

bool IsMenuFileNameInAnyCase(std::string_view name) {
    return IsMenuFileName(AsciiLowerCase(name));
}

Findings CheckMenuFile(const std::string& path, std::string_view bytes, const MenuDefinition& definition,
                       const CodePage& codePage) {
    return MenuFileCheck{path, bytes, definition, codePage}.Run();
}

std::string FindFileNameFault(std::string_view key, LeadByteTest isLeadByte) {
    if (std::ranges::any_of(key, [](char byte) { return byte >= 0 && byte < ' '; }))
        return "holds a control character";
    if (const auto place = key.find_first_of(":*?\"<"); place != std::string_view::npos)
        return std::string("holds the character ") + key[place];
    if (FindCharacter(key, '|', isLeadByte) != std::string_view::npos)
        return "holds the character |";
    const auto parts = SplitPath(key, isLeadByte);
    if (const auto device = std::ranges::find_if(parts, NamesDevice); device != parts.end())
        return "names a device of Windows (" + std::string(*device) + ")";
    return "";
}

std::string FormatMenuTree(const MenuDefinition& definition, LeadByteTest isLeadByte) {
    constexpr std::size_t numberWidth = 5;
    std::string tree =
        ReplaceControlCharacters(RemoveAccessKeyMarks(Shorten(definition.title, isLeadByte))) + "\r\n";
    for (std::size_t i = 0; i < definition.entries.size(); ++i) {
        const MenuEntry& entry = definition.entries[i];
        const bool isOrphan = entry.depth > 0 && entry.parent == 0; // shown at the top level
        const std::string number = std::to_string(LineOfEntry(i));
        tree.append(numberWidth - std::min(number.size(), numberWidth), ' ')
            .append(number + ":")
            .append(isOrphan ? 2 : 2 * (entry.depth + 1), ' ')
            .append(ReplaceControlCharacters(Shorten(entry.text, isLeadByte)))
            .append(entry.isProgram ? ReplaceControlCharacters(" [" + Shorten(entry.key, isLeadByte) + "]")
                                    : "")
            .append("\r\n");
    }
    return tree;
}

} // namespace obrin
