#include "Fuzz.h"

#include "startup/UserRecords.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto file = Text(data, size);
    const auto scan = obrin::ScanUserRecords(file, "anna");
    Require(scan.recordsRead * obrin::userRecordSlot <= size + 100);

    // A record written behind the last one read is the one found.
    std::string longer(file.substr(0, scan.recordsRead * obrin::userRecordSlot));
    longer.resize(scan.recordsRead * obrin::userRecordSlot);
    longer += obrin::UserWsidRecord("anna", 42);
    Require(obrin::ScanUserRecords(longer, "anna").wsid == 42);

    if (const auto wsid = obrin::ParseWsidAnswer(file))
        Require(*wsid >= 1 && *wsid <= 99);
    return 0;
}
