// Proves that a rewritten configuration begins with its drive line and is not changed by the next rewrite.
#include "Fuzz.h"

#include "startup/HostConfiguration.h"

static std::string Rewrite(std::string_view configuration) {
    return obrin::WithDriveLine("C:\\HOST", obrin::BlankDriveLines(configuration, UpperCase));
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string once = Rewrite(Text(data, size));
    Require(once.starts_with("Drive S,C:\\HOST,X,\\\r\n"));
    Require(Rewrite(once) == once);
    return 0;
}
