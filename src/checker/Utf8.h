// Whether text is UTF-8 where the workstation's code page is expected.
#pragma once

#include <string_view>

namespace obrin {

enum class Utf8 {
    No,    ///< characters beyond ASCII that are no well-formed UTF-8
    Ascii, ///< none at all
    Yes,   ///< well-formed characters beyond ASCII: a text of the code page hardly ever looks so
};

Utf8 LookForUtf8(std::string_view text);

} // namespace obrin
