#include "Fuzz.h"

#include "checker/FileChecks.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto file = Text(data, size);
    obrin::CheckUserRecords(file, IsLeadByte);
    obrin::CheckUpdateRegister(file);
    obrin::CheckSupportLibrary(file, file);
    return 0;
}
