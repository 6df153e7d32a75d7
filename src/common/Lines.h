// Reads texts line by line.
#pragma once

#include <optional>
#include <string_view>

namespace obrin {

/// How to read an LF without a CR in front of it. CR LF and a lone CR always end a line.
enum class LoneLf { IsText, EndsLine };

/// Returns the lines of a text one after the other. Text after the last line end is also a line.
class LineReader {
public:
    explicit LineReader(std::string_view text, LoneLf aLoneLf = LoneLf::IsText)
        : rest(text)
        , loneLf(aLoneLf) {}

    /// Returns the next line without its line end, or nothing at the end of the text.
    std::optional<std::string_view> Next();

private:
    std::string_view rest;
    LoneLf loneLf;
};

} // namespace obrin
