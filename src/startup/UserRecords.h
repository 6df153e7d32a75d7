// The workstation number as values: the records of "UserWSID.sys", the answers to the question for it, its
// marker file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace obrin {

/// Bytes of a record slot. Records written by earlier installations are found only at multiples of 202.
constexpr std::size_t userRecordSlot = 202;

struct UserRecord {
    std::string_view name; ///< without blanks at its ends; part of the file
    std::int16_t wsid;
};

/// The records of the whole file; a fragment at its end is none.
std::vector<UserRecord> ReadUserRecords(std::string_view file);

/// What a scan of the whole file found.
struct UserScan {
    std::int16_t wsid = 0;       ///< of the user's last record; 0 when there is none
    std::size_t recordsRead = 0; ///< a new record goes into the slot behind these
};

/// Scans the file's bytes for the user. Names are compared without blanks at both ends, case matters.
UserScan ScanUserRecords(std::string_view file, std::string_view loginName);

/// A whole slot: the name without blanks at both ends, cut or padded to 100 bytes, the number, zeros.
std::string UserWsidRecord(std::string_view loginName, std::int16_t wsid);

/// The workstation number that an answer names: a whole value from 1 to 99, nothing otherwise.
std::optional<std::int16_t> ParseWsidAnswer(std::string_view answer);

/// The workstation's marker file, "Menu 5.txt": the blank of the number's sign position is part of the name.
std::string MarkerFileName(int wsid);

} // namespace obrin
