#include "startup/UserRecords.h"

#include "common/Numbers.h"
#include "common/Text.h"

#include <algorithm>
#include <cmath>

namespace obrin {

namespace {

constexpr std::size_t nameBytes = 100;
constexpr std::size_t recordBytes = nameBytes + 2; // filler follows; the last slot may end without it

unsigned ByteAt(std::string_view bytes, std::size_t position) {
    return static_cast<unsigned char>(bytes[position]);
}

} // namespace

std::vector<UserRecord> ReadUserRecords(std::string_view file) {
    std::vector<UserRecord> records;
    while (file.size() >= recordBytes) {
        records.push_back(
            {.name = TrimBlanks(file.substr(0, nameBytes)),
             .wsid = static_cast<std::int16_t>(ByteAt(file, nameBytes) | ByteAt(file, nameBytes + 1) << 8)});
        file.remove_prefix(std::min(userRecordSlot, file.size()));
    }
    return records;
}

UserScan ScanUserRecords(std::string_view file, std::string_view loginName) {
    const auto wanted = TrimBlanks(loginName);
    const auto records = ReadUserRecords(file);
    UserScan scan{.wsid = 0, .recordsRead = records.size()};
    // Does not stop at a match: if a user has several records, the last one counts.
    for (const auto& [name, wsid] : records) {
        if (name == wanted)
            scan.wsid = wsid;
    }
    return scan;
}

std::string UserWsidRecord(std::string_view loginName, std::int16_t wsid) {
    std::string record(TrimBlanks(loginName));
    record.resize(nameBytes, ' ');
    const auto number = static_cast<std::uint16_t>(wsid);
    record += static_cast<char>(number & 0xFF);
    record += static_cast<char>(number >> 8);
    record.resize(userRecordSlot, '\0');
    return record;
}

std::optional<std::int16_t> ParseWsidAnswer(std::string_view answer) {
    const auto value = ParseNumber(answer);
    if (!value || !(*value > 0 && *value < 100) || std::trunc(*value) != *value)
        return std::nullopt;
    return static_cast<std::int16_t>(*value);
}

std::string MarkerFileName(int wsid) {
    return "Menu" + SignedDecimal(wsid) + ".txt";
}

} // namespace obrin
