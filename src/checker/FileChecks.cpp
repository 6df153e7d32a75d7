#include "checker/FileChecks.h"

#include "maintenance/UpdateRegister.h"
#include "menu/MenuDefinition.h"
#include "startup/UserRecords.h"

#include <algorithm>
#include <map>

namespace obrin {

namespace {

Finding Error(std::string text) {
    return {.kind = Finding::Kind::Error, .line = 0, .text = std::move(text)};
}

Finding Warning(std::string text) {
    return {.kind = Finding::Kind::Warning, .line = 0, .text = std::move(text)};
}

// Little-endian; nothing beyond the end.
std::optional<std::uint32_t> Number(std::string_view bytes, std::size_t place, std::size_t size) {
    if (place > bytes.size() || bytes.size() - place < size)
        return std::nullopt;
    std::uint32_t number = 0;
    for (std::size_t i = size; i-- > 0;)
        number = number << 8 | static_cast<unsigned char>(bytes[place + i]);
    return number;
}

bool LeadsToHost(std::int16_t wsid) {
    return wsid >= 1 && wsid <= 99;
}

const char* BitsOf(std::uint16_t machine) {
    return machine == machine32 ? "32 bits" : machine == machine64 ? "64 bits" : "another processor";
}

} // namespace

bool IsMistakenMenuFileName(std::string_view name) {
    std::string lower(name);
    std::ranges::transform(lower, lower.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return IsMenuFileName(lower) && !IsMenuFileName(name);
}

std::vector<Finding> CheckUserRecords(std::string_view file, LeadByteTest isLeadByte) {
    std::vector<Finding> findings;
    const auto records = ReadUserRecords(file);
    std::map<std::string_view, std::size_t> lastOfUser; // record, counted from 1
    for (std::size_t i = 0; i < records.size(); ++i) {
        const auto& [name, wsid] = records[i];
        const std::string number = std::to_string(i + 1);
        const std::string user = "the user " + Shown(name, isLeadByte);
        if (!LeadsToHost(wsid))
            findings.push_back(Warning(
                "record " + number + " gives " + user + " the workstation number " + std::to_string(wsid) +
                ": only 1 to 99 lead to a host; remove the record, and the menu asks"));
        if (const auto [earlier, isNew] = lastOfUser.try_emplace(name, i + 1); !isNew) {
            findings.push_back(Warning(user + " has the records " + std::to_string(earlier->second) +
                                       " and " + number + ": the last one counts; remove the others"));
            earlier->second = i + 1;
        }
    }
    std::map<std::int16_t, std::string_view> userOfNumber;
    for (const auto& [name, record] : lastOfUser) {
        const auto wsid = records[record - 1].wsid;
        if (!LeadsToHost(wsid))
            continue;
        if (const auto [other, isNew] = userOfNumber.try_emplace(wsid, name); !isNew)
            findings.push_back(
                Warning("the users " + Shown(other->second, isLeadByte) + " and " + Shown(name, isLeadByte) +
                        " both have the workstation number " + std::to_string(wsid) +
                        ": they cannot work at the same time; remove one's record, and the menu asks"));
    }
    return findings;
}

std::vector<Finding> CheckUpdateRegister(std::string_view file) {
    std::vector<Finding> findings;
    if (const auto other = file.find_first_not_of("0123456789"); other != std::string_view::npos)
        findings.push_back(
            Warning("byte " + std::to_string(other + 1) +
                    " is no digit: workstations whose three digits do not stand at a multiple of three "
                    "are updated again; remove line ends, blanks and what else is no number"));
    if (file.size() % updateKeyBytes != 0)
        findings.push_back(
            Warning("the last record is cut off: the next workstation that is updated overwrites it; "
                    "cut the file to " +
                    std::to_string(file.size() / updateKeyBytes * updateKeyBytes) + " bytes"));
    return findings;
}

std::optional<std::uint16_t> ImageMachine(std::string_view image) {
    const auto header = Number(image, 0x3C, 4);
    if (!image.starts_with("MZ") || !header ||
        !image.substr(std::min<std::size_t>(*header, image.size()))
             .starts_with(std::string_view("PE\0\0", 4)))
        return std::nullopt;
    const auto machine = Number(image, *header + 4, 2);
    return machine ? std::optional(static_cast<std::uint16_t>(*machine)) : std::nullopt;
}

std::vector<Finding> CheckSupportLibrary(std::string_view library, std::string_view program) {
    constexpr const char* ending = ": the menu ends with an error at every start; ";
    const auto machine = ImageMachine(library);
    if (!machine)
        return {Error(std::string("no library of Windows") + ending + "install it again")};
    std::vector<Finding> findings;
    if (const auto wanted = ImageMachine(program); wanted && machine != wanted)
        findings.push_back(Error(std::string("made for ") + BitsOf(*machine) + ", ObrinMenu.exe for " +
                                 BitsOf(*wanted) + ending + "install both from the same package"));
    // The names of its routines stand in it as they are.
    for (const char* routine : {"GetRegValue", "SetRegValue"}) {
        if (library.find(std::string(1, '\0') + routine + '\0') == std::string_view::npos)
            findings.push_back(Error(std::string("without the routine ") + routine + ending +
                                     "install the library that came with the menu"));
    }
    return findings;
}

} // namespace obrin
