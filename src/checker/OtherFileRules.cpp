#include "checker/OtherFileRules.h"

#include "common/Installation.h"
#include "maintenance/UpdateRegister.h"
#include "startup/UserRecords.h"

#include <cstdint>
#include <map>

namespace obrin {

Findings CheckUserRecords(const std::string& path, std::string_view bytes, std::string_view ownName) {
    Findings findings;
    const auto records = ReadUserRecords(bytes);
    std::map<std::string, std::size_t> lastRecordOfUser; // counted from 1
    for (std::size_t i = 1; i <= records.size(); ++i) {
        const std::string name(records[i - 1].name);
        const auto [earlier, isNew] = lastRecordOfUser.try_emplace(name, i);
        if (!isNew)
            Add(findings, Effect::None, {path},
                {"the user " + name + " has the records " + std::to_string(earlier->second) + " and " +
                     std::to_string(i),
                 "remove the others"},
                "the last one counts");
        earlier->second = i;
    }
    std::map<std::int16_t, std::string> userOfNumber;
    std::map<std::string, std::string> userInAnyCase; // Windows may report a name in the case that was typed
    for (const auto& [name, record] : lastRecordOfUser) {
        const auto wsid = records[record - 1].wsid;
        const std::string number = "the workstation number " + std::to_string(wsid);
        const Trouble trouble{"record " + std::to_string(record) + " gives the user " + name + ' ' + number,
                              "remove the record, so that the menu asks for a number"};
        if (wsid < 0)
            Add(findings, name == TrimBlanks(ownName) ? Effect::WaitsForEver : Effect::FailsForOthers, {path},
                trouble, "the menu of this user waits for ever and shows no window");
        else if (wsid < 1 || wsid > maxWsid)
            Add(findings, Effect::None, {path}, trouble, "it must be from 1 to 99");

        const auto [spelling, isNewName] = userInAnyCase.try_emplace(AsciiLowerCase(name), name);
        if (!isNewName) {
            if (records[lastRecordOfUser.at(spelling->second) - 1].wsid != wsid)
                Add(findings, Effect::None, {path},
                    {"the users " + spelling->second + " and " + name + " differ in case alone",
                     "give both records the same number"},
                    "Windows takes them for one user, whose number depends on how the name is typed");
            continue; // both records are for one user, who may have the number twice
        }
        const auto [other, isNewNumber] = userOfNumber.try_emplace(wsid, name);
        if (!isNewNumber && wsid >= 1 && wsid <= maxWsid)
            Add(findings, Effect::None, {path},
                {"the users " + other->second + " and " + name + " both have " + number,
                 "remove the record of one, so that the menu asks for another number"},
                "they cannot work at the same time");
    }
    return findings;
}

Findings CheckUpdateRegister(const std::string& path, std::string_view bytes) {
    Findings findings;
    if (const auto other = bytes.find_first_not_of("0123456789"); other != std::string_view::npos)
        Add(findings, Effect::None, {path},
            {"byte " + std::to_string(other + 1) + " is no digit",
             "remove line ends, blanks and everything else that is no digit"},
            "records that it damages or shifts are not found, and their workstations are updated again");
    if (const auto rest = bytes.size() % updateKeyBytes; rest != 0)
        Add(findings, Effect::None, {path},
            {"the last record is cut off",
             "cut the file to " + std::to_string(bytes.size() - rest) + " bytes"},
            "the next workstation that is updated overwrites it");
    return findings;
}

} // namespace obrin
