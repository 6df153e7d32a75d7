// Checks that a record appended to any file is found, and that an accepted answer is a number from 1 to 99.
#include "Fuzz.h"

#include "startup/UserRecords.h"

static void RequireToFindANewRecord(std::string_view file) {
    const auto end = obrin::ScanUserRecords(file, "anna").recordsRead * obrin::userRecordSlot;
    std::string longer(file);
    longer.resize(end); // completes the last slot, or removes an incomplete record
    longer += obrin::UserWsidRecord("anna", 42);
    Require(obrin::ScanUserRecords(longer, "anna").wsid == 42);
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto text = Text(data, size);
    RequireToFindANewRecord(text);
    if (const auto wsid = obrin::ParseWsidAnswer(text)) {
        Require(*wsid >= 1);
        Require(*wsid <= 99);
    }
    return 0;
}
