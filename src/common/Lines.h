// The one line reader of the program.
#pragma once

#include <optional>
#include <string_view>

namespace obrin {

/// Whether a line ends at a lone LF as it does at CR LF and at a lone CR.
enum class LoneLf { IsText, EndsLine };

/// Hands out the lines of a text one after the other. A last line without a line end is a line; behind the
/// last line end there is none.
class LineReader {
public:
    explicit LineReader(std::string_view text, LoneLf aLoneLf = LoneLf::IsText)
        : rest(text)
        , loneLf(aLoneLf) {}

    /// The next line without its line end, or nothing at the end of the text.
    std::optional<std::string_view> Next();

private:
    std::string_view rest;
    LoneLf loneLf;
};

} // namespace obrin
