// Checks that a rewritten configuration begins with the drive line and ends each line with CR LF, and that
// the next rewrite changes nothing.
#include "Fuzz.h"

#include "startup/HostConfiguration.h"

#include <algorithm>

static std::string Rewrite(std::string_view configuration) {
    return obrin::AddDriveLine("C:\\HOST", obrin::BlankDriveLines(configuration, UpperCase));
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string once = Rewrite(Text(data, size));
    Require(once.starts_with("Drive S,C:\\HOST,X,\\\r\n"));
    Require(std::ranges::count(once, '\n') == std::ranges::count(once, '\r'));
    Require(Rewrite(once) == once);
    return 0;
}
