#include "checker/MenuCheck.h"

#include "checker/Utf8.h"
#include "common/Bytes.h"
#include "menu/MenuDefinition.h"

#include <algorithm>
#include <cstdint>
#include <utility>

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

// All that is warned of in keys holds one of these; most keys hold none.
bool NeedsCloserLook(std::string_view key) {
    return std::ranges::any_of(key, [](char byte) {
        return byte == ' ' || byte == '.' || byte == ':' || byte == '*' || byte == '?' || byte == '"' ||
               byte == '<' || byte == '|';
    });
}

class Checker : public MenuSink {
public:
    Checker(const CodePage& page, MenuWishes wished)
        : codePage(page)
        , wishes(wished) {}

    void TakeHeader(std::string_view line) override {
        WarnOfByteOrderMark(line);
        LookAtBytes(1, line.substr(line.starts_with(utf8Mark) ? utf8Mark.size() : 0));
        const auto title = HeaderTitle(line, codePage.isLeadByte);
        if (TrimBlanks(title).empty())
            Warn(1, "the title is empty: the System List shows this system without a name; write it in front "
                    "of the first \"^\"");
        if (wishes.tree)
            check.tree.append(Show(title)).append("\r\n");
    }

    void TakeEntry(const MenuLine& entry) override {
        if (!entry.isPlain)
            LookAtBytes(entry.line, entry.wholeLine);
        if (entry.depth >= mostLevels && !std::exchange(tooDeep, true))
            Warn(entry.line, "more than 20 levels: nobody finds a program down there; use fewer headings in "
                             "headings");
        nodes.push_back({.line = entry.line,
                         .parent = entry.parent,
                         .used = entry.isProgram,
                         .text = entry.isProgram ? "" : Show(entry.text)});
        if (entry.isProgram)
            TakeProgram(entry);
        if (wishes.tree) {
            check.tree.append(2 * (entry.depth + 1), ' ')
                .append(Show(entry.isProgram ? WithoutDepthMarks(entry.text) : std::string(entry.text)));
            if (entry.isProgram)
                check.tree.append(" [").append(Show(entry.key)).append("]");
            check.tree.append("\r\n");
        }
    }

    void TakeFault(const MenuFault& fault) override {
        std::string text = Show(fault.reason);
        if (fault.kind == MenuFault::Kind::KeyTwice)
            text += ", in line " + std::to_string(fault.firstLine);
        const bool isEmpty = fault.kind == MenuFault::Kind::NoHeader; // already the listing fails
        text.append(": the menu ends with an error ")
            .append(isEmpty ? "at every start; " : "when it shows this system; ")
            .append(AdviceOn(fault.kind));
        check.findings.push_back(
            {.kind = Finding::Kind::Error, .line = isEmpty ? 0 : fault.line, .text = std::move(text)});
    }

    /// What can be told only once the whole file is known.
    MenuCheck Finish() {
        if (utf8 == Utf8::Yes && !codePage.isUtf8)
            Warn(utf8Line,
                 "text in UTF-8: the menu shows other letters than are meant; save the file as ANSI text");
        for (const auto& [line, parent, used, text] : nodes) {
            // Of headings within each other, the outermost alone.
            if (used || (parent != 0 && !Above(parent).used))
                continue;
            if (text.empty())
                Warn(line, "an empty line: the menu shows it as a heading without text; remove it");
            else
                Warn(line, "the heading " + text +
                               " holds no program: operators open it in vain; put "
                               "programs below it, or remove it");
        }
        return std::move(check);
    }

private:
    struct Node {
        int line;
        std::int16_t parent; // tree index
        bool used;           // a program, or a heading with one below it
        std::string text;    // of a heading, as it can be shown
    };
    static constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

    Node& Above(std::int16_t parent) { return nodes[static_cast<std::size_t>(parent) - 1]; }

    void Warn(int line, std::string text) {
        check.findings.push_back({.kind = Finding::Kind::Warning, .line = line, .text = std::move(text)});
    }

    void WarnOfByteOrderMark(std::string_view header) {
        const bool utf16 = header.starts_with("\xFF\xFE") || header.starts_with("\xFE\xFF");
        if (utf16 || header.starts_with(utf8Mark))
            Warn(1, std::string("a byte-order mark of ") + (utf16 ? "UTF-16" : "UTF-8") +
                        ": the menu takes it for letters of the title; save the file as ANSI text");
    }

    // While the line is still at hand: a second walk through a large file would cost as much as the first.
    void LookAtBytes(int number, std::string_view line) {
        const auto unusual = FindUnusualByte(line);
        if (unusual == std::string_view::npos)
            return;
        const auto rest = line.substr(unusual);
        if (!loneLineFeed && FindByte(rest, '\n') != std::string_view::npos) {
            loneLineFeed = true;
            Warn(number,
                 "a line end of LF alone: the menu reads on as if there were none; save the file with line "
                 "ends of CR LF");
        }
        if (utf8 == Utf8::No)
            return;
        if (const auto found = LookForUtf8(rest); found != Utf8::Ascii) {
            utf8Line = utf8 == Utf8::Ascii ? number : utf8Line;
            utf8 = found;
        }
    }

    std::string Show(std::string_view text) const { return Shown(text, codePage.isLeadByte); }

    void TakeProgram(const MenuLine& entry) {
        for (auto above = entry.parent; above != 0 && !std::exchange(Above(above).used, true);)
            above = Above(above).parent;
        if (wishes.keys && !entry.key.empty()) // without a key, no settings
            check.keys.emplace_back(entry.key);

        if (!NeedsCloserLook(entry.key))
            return;
        const auto warn = [&](const char* text) { Warn(entry.line, "the key " + Show(entry.key) + text); };
        if (NamesFolderAbove(entry.key, codePage.isLeadByte))
            warn(" holds \"..\": the program's settings file may lie outside of the folder for these; write "
                 "the "
                 "program's path without it");
        if (entry.key.find(':') != std::string_view::npos)
            warn(" names a drive: the Properties dialog of this program ends the menu with an error; write "
                 "its path from the host's folder on");
        if (HoldsWhatNoFileNameMay(entry.key, codePage.isLeadByte))
            warn(" holds a character that no file name may (* ? \" < |): the Properties dialog of this "
                 "program ends the menu with an error; name the program otherwise");
        if (TrimBlanks(entry.key).size() != entry.key.size())
            warn(" begins or ends with a blank: the blank is typed into the host too; remove it");
    }

    const CodePage& codePage;
    MenuWishes wishes;
    MenuCheck check;
    bool tooDeep = false;
    bool loneLineFeed = false;
    Utf8 utf8 = Utf8::Ascii; // all lines up to here
    int utf8Line = 0;        // the first with characters beyond ASCII
    std::vector<Node> nodes; // by tree index, from 1
};

} // namespace

MenuCheck CheckMenuFile(std::string_view file, const CodePage& codePage, MenuWishes wishes) {
    Checker checker(codePage, wishes);
    ReadMenuDefinition(file, codePage.isLeadByte, checker);
    return checker.Finish();
}

MenuCheck CheckMenuFile(MoreText file, const CodePage& codePage, MenuWishes wishes) {
    Checker checker(codePage, wishes);
    ReadMenuDefinition(std::move(file), codePage.isLeadByte, checker);
    return checker.Finish();
}

} // namespace obrin
