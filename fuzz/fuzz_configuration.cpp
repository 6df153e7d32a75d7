// Proves that a rewritten configuration has its drive line first, ends each line in CR LF and is final.
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
    Require(Rewrite(once) == once); // the next start changes nothing
    return 0;
}
