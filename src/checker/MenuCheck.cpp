#include "checker/MenuCheck.h"

#include "checker/Utf8.h"
#include "common/Lines.h"
#include "menu/MenuDefinition.h"

#include <algorithm>

namespace obrin {

namespace {

constexpr std::size_t mostLevels = 20;

const char* AdviceOn(MenuFault::Kind kind) {
    switch (kind) {
    case MenuFault::Kind::NoHeader:
        return "write the system's title into its first line";
    case MenuFault::Kind::NoHeading:
        return "take away a \">\", or put the missing heading above";
    case MenuFault::Kind::NumberAsKey:
        return "name the program with its folder";
    case MenuFault::Kind::KeyTwice:
        return "remove one of the two";
    case MenuFault::Kind::TooManyEntries:
        return "divide the system into several; from this line on, nothing has been checked";
    }
    return "";
}

bool NamesFolderAbove(std::string_view key, LeadByteTest isLeadByte) {
    for (std::size_t start = 0; start <= key.size();) {
        // For a file name "/" separates as well.
        const auto end =
            std::min({FindCharacter(key, '\\', isLeadByte, start), key.find('/', start), key.size()});
        if (TrimBlanks(key.substr(start, end - start)) == "..")
            return true;
        start = end + 1;
    }
    return false;
}

// But for ":", which names a drive.
bool HoldsWhatNoFileNameMay(std::string_view key, LeadByteTest isLeadByte) {
    return key.find_first_of("*?\"<") != std::string_view::npos ||
           FindCharacter(key, '|', isLeadByte) != std::string_view::npos;
}

class Checker {
public:
    Checker(std::string_view text, const CodePage& page, MenuWishes wished)
        : file(text)
        , codePage(page)
        , wishes(wished)
        , definition(ParseMenuDefinition(text, page.isLeadByte)) {}

    MenuCheck Check() {
        CheckHeader();
        CheckBytes();
        CheckLevels();
        CheckHeadings();
        CheckKeys();
        for (const MenuFault& fault : definition.faults)
            AddFault(fault);
        if (wishes.tree)
            check.tree = Tree();
        return std::move(check);
    }

private:
    static constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

    static int LineOf(std::size_t entry) { return static_cast<int>(entry) + 2; }

    void Warn(int line, std::string text) {
        check.findings.push_back({.kind = Finding::Kind::Warning, .line = line, .text = std::move(text)});
    }

    std::string Show(std::string_view text) const { return Shown(text, codePage.isLeadByte); }

    void CheckHeader() {
        if (file.empty())
            return;
        const bool utf16 = file.starts_with("\xFF\xFE") || file.starts_with("\xFE\xFF");
        if (utf16 || file.starts_with(utf8Mark))
            Warn(1, std::string("a byte-order mark of ") + (utf16 ? "UTF-16" : "UTF-8") +
                        ": the menu takes it for letters of the title; save the file as ANSI text");
        if (TrimBlanks(definition.title).empty())
            Warn(1, "the title is empty: the System List shows this system without a name; write it in front "
                    "of the first \"^\"");
    }

    void CheckBytes() {
        bool loneLineFeed = false;
        auto utf8 = Utf8::Ascii; // all lines up to here
        int utf8Line = 0;        // the first with characters beyond ASCII
        LineReader lines(file.substr(file.starts_with(utf8Mark) ? utf8Mark.size() : 0));
        for (int number = 1; const auto line = lines.Next(); ++number) {
            if (!loneLineFeed && line->find('\n') != std::string_view::npos) {
                loneLineFeed = true;
                Warn(number,
                     "a line end of LF alone: the menu reads on as if there were none; save the file with "
                     "line ends of CR LF");
            }
            if (const auto found = LookForUtf8(*line); utf8 != Utf8::No && found != Utf8::Ascii) {
                utf8Line = utf8 == Utf8::Ascii ? number : utf8Line;
                utf8 = found;
            }
        }
        if (utf8 == Utf8::Yes && !codePage.isUtf8)
            Warn(utf8Line,
                 "text in UTF-8: the menu shows other letters than are meant; save the file as ANSI text");
    }

    void CheckLevels() {
        const auto& entries = definition.entries;
        const auto deep =
            std::ranges::find_if(entries, [](auto& entry) { return entry.depth >= mostLevels; });
        if (deep != entries.end())
            Warn(LineOf(static_cast<std::size_t>(deep - entries.begin())),
                 "more than 20 levels: nobody finds a program down there; use fewer headings in headings");
    }

    void CheckHeadings() {
        const auto& entries = definition.entries;
        std::vector<bool> used(entries.size() +
                               1); // by tree index: a program, or a heading with one below it
        used[0] = true;
        for (std::size_t i = entries.size(); i-- > 0;) {
            if (entries[i].isProgram || used[i + 1]) {
                used[i + 1] = true;
                used[static_cast<std::size_t>(entries[i].parent)] = true;
            }
        }
        for (std::size_t i = 0; i < entries.size(); ++i) {
            // Of headings within each other only the outermost is told.
            if (used[i + 1] || !used[static_cast<std::size_t>(entries[i].parent)])
                continue;
            if (entries[i].text.empty())
                Warn(LineOf(i), "an empty line: the menu shows it as a heading without text; remove it");
            else
                Warn(LineOf(i), "the heading " + Show(entries[i].text) +
                                    " holds no program: operators open it in vain; put programs below it, or "
                                    "remove it");
        }
    }

    void CheckKeys() {
        for (std::size_t i = 0; i < definition.entries.size(); ++i) {
            const std::string& key = definition.entries[i].key;
            if (wishes.keys && !key.empty()) // without a key, no settings
                check.keys.push_back(key);
            const auto warn = [&](const char* text) { Warn(LineOf(i), "the key " + Show(key) + text); };
            if (NamesFolderAbove(key, codePage.isLeadByte))
                warn(" holds \"..\": the program's settings file may lie outside of the folder for these; "
                     "write the "
                     "program's path without it");
            if (key.find(':') != std::string::npos)
                warn(" names a drive: the Properties dialog of this program ends the menu with an error; "
                     "write "
                     "its path from the host's folder on");
            if (HoldsWhatNoFileNameMay(key, codePage.isLeadByte))
                warn(" holds a character that no file name may (* ? \" < |): the Properties dialog of this "
                     "program ends the menu with an error; name the program otherwise");
            if (TrimBlanks(key).size() != key.size())
                warn(" begins or ends with a blank: the blank is typed into the host too; remove it");
        }
    }

    void AddFault(const MenuFault& fault) {
        std::string text = Show(fault.text);
        if (fault.kind == MenuFault::Kind::KeyTwice)
            text += ", in line " + std::to_string(fault.firstLine);
        const bool isEmpty = fault.kind == MenuFault::Kind::NoHeader; // already the listing fails
        text.append(": the menu ends with an error ")
            .append(isEmpty ? "at every start; " : "when it shows this system; ")
            .append(AdviceOn(fault.kind));
        check.findings.push_back(
            {.kind = Finding::Kind::Error, .line = isEmpty ? 0 : fault.line, .text = std::move(text)});
    }

    std::string Tree() const {
        if (file.empty())
            return {};
        std::string tree = Show(definition.title) + "\r\n";
        for (const MenuEntry& entry : definition.entries) {
            const bool isOrphan = entry.depth > 0 && entry.parent == 0; // shown as one of the top level
            tree.append(isOrphan ? 2 : 2 * (entry.depth + 1), ' ').append(Show(entry.text));
            if (entry.isProgram)
                tree.append(" [").append(Show(entry.key)).append("]");
            tree.append("\r\n");
        }
        return tree;
    }

    std::string_view file;
    const CodePage& codePage;
    MenuWishes wishes;
    MenuDefinition definition;
    MenuCheck check;
};

} // namespace

MenuCheck CheckMenuFile(std::string_view file, const CodePage& codePage, MenuWishes wishes) {
    return Checker(file, codePage, wishes).Check();
}

} // namespace obrin
