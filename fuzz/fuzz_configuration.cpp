#include "Fuzz.h"

#include "startup/HostConfiguration.h"

#include <algorithm>

namespace {

std::string Upper(std::string text) {
    for (char& c : text)
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    return text;
}

std::string Rewrite(std::string_view configuration) {
    return obrin::WithDriveLine("C:\\HOST", obrin::BlankDriveLines(configuration, Upper));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string once = Rewrite(Text(data, size));
    Require(once.starts_with("Drive S,C:\\HOST,X,\\\r\n"));
    Require(std::ranges::count(once, '\n') == std::ranges::count(once, '\r'));
    Require(Rewrite(once) == once); // the next start changes nothing
    return 0;
}
