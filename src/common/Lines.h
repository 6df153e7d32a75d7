// The one line reader of the program.
#pragma once

#include <optional>
#include <string_view>

namespace obrin {

/// Hands out the lines of a text one after the other. A line ends at CR LF or at a lone CR; a lone LF is
/// text. A last line without a line end is a line; behind the last line end there is none.
class LineReader {
public:
    explicit LineReader(std::string_view text)
        : rest(text) {}

    /// The next line without its line end, or nothing at the end of the text.
    std::optional<std::string_view> Next();

private:
    std::string_view rest;
};

} // namespace obrin
