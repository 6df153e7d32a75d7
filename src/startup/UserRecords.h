// The workstation number in the records of "UserWSID.sys", in answers of the user and in file names.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace obrin {

/// Bytes of a record slot. Earlier installations have written records at multiples of 202.
constexpr std::size_t userRecordSlot = 202;

struct UserRecord {
    std::string_view name; ///< trimmed; points into the bytes of the file
    std::int16_t wsid;
};

/// Reads all records from the bytes of the file. Ignores an incomplete record at the end.
std::vector<UserRecord> ReadUserRecords(std::string_view file);

struct UserScan {
    std::int16_t wsid = 0;       ///< from the last record of the user; 0 if there is none
    std::size_t recordsRead = 0; ///< the index of the slot for a new record
};

/// Looks for the records of a user in the bytes of the file. Compares trimmed names, case-sensitively.
UserScan ScanUserRecords(std::string_view file, std::string_view loginName);

/// Returns the bytes of a slot: the trimmed name in 100 bytes, the number in two bytes, zeros.
std::string UserWsidRecord(std::string_view loginName, std::int16_t wsid);

/// Returns the number that an answer contains if it is whole and from 1 to 99; nothing for other answers.
std::optional<std::int16_t> ParseWsidAnswer(std::string_view answer);

/// Returns the name of the marker file: "Menu 5.txt" for workstation 5.
std::string MarkerFileName(int wsid);

} // namespace obrin
