// Checks that the checker can read any bytes as user records and as an update register.
#include "Fuzz.h"

#include "checker/OtherFileRules.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto file = Text(data, size);
    obrin::CheckUserRecords("", file, "anna");
    obrin::CheckUpdateRegister("", file);
    return 0;
}
