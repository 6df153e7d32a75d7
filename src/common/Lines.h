// The one line reader of the program.
#pragma once

#include <functional>
#include <optional>
#include <string_view>

namespace obrin {

/// Reads on: gets the text that has not been handed out yet and returns it with more behind it, or as it is
/// at the end. All text that it returned before may be gone then.
using MoreText = std::function<std::string_view(std::string_view rest)>;

/// Whether a line ends at a lone LF as it does at CR LF and at a lone CR.
enum class LoneLf { IsText, EndsLine };

/// Hands out the lines of a text one after the other. A last line without a line end is a line; behind the
/// last line end there is none.
class LineReader {
public:
    explicit LineReader(std::string_view text, LoneLf aLoneLf = LoneLf::IsText)
        : rest(text)
        , loneLf(aLoneLf) {}

    /// The mark is a printable character to look out for on the way to each line's end.
    LineReader(std::string_view text, char lineMark)
        : rest(text)
        , mark(lineMark) {}

    /// Of a text that comes in parts; a line lasts until the next one is asked for.
    LineReader(MoreText source, char lineMark)
        : mark(lineMark)
        , more(std::move(source)) {}

    /// The next line without its line end, or nothing at the end of the text.
    std::optional<std::string_view> Next();

    /// What the search for the end of the line handed out last tells by the way, when a mark was given:
    /// whether it holds printable ASCII only, and if so, where the mark first stands; npos when nowhere.
    bool IsPlain() const { return plain; }
    std::size_t MarkOfPlainLine() const { return markPlace; }

    /// Whether lines last as long as the text that they are part of.
    bool LinesLast() const { return more == nullptr; }

private:
    /// Where the line ends; npos when the rest of the text is its last line.
    std::size_t FindEnd();

    std::string_view rest;
    LoneLf loneLf = LoneLf::IsText;
    char mark = '\0';
    bool plain = false;
    std::size_t markPlace = std::string_view::npos;
    MoreText more;
};

} // namespace obrin
