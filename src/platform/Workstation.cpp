#include "platform/Workstation.h"

#include "platform/WindowsApi.h"

#include <array>

namespace obrin {

std::string UpperCase(std::string text) {
    CharUpperBuffA(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

LeadByteTest CodePageLeadByteTest() {
    CPINFO page{};
    GetCPInfo(CP_ACP, &page);
    if (page.LeadByte[0] == 0)
        return nullptr;
    return [](char byte) { return IsDBCSLeadByte(static_cast<BYTE>(byte)) != FALSE; };
}

std::string LoginName() {
    std::array<char, 100> buffer{};
    DWORD size = buffer.size();
    GetUserNameA(buffer.data(), &size);
    buffer.back() = '\0';
    return buffer.data();
}

std::string OwnFile() {
    std::array<char, MAX_PATH> path;
    return {path.data(), GetModuleFileNameA(nullptr, path.data(), path.size())};
}

std::string OwnFolder() {
    const std::string file = OwnFile();
    return file.substr(0, FindLastCharacter(file, '\\', CodePageLeadByteTest()) + 1);
}

std::string EnvironmentVariable(const char* name) {
    std::string value(GetEnvironmentVariableA(name, nullptr, 0), '\0');
    value.resize(GetEnvironmentVariableA(name, value.data(), static_cast<DWORD>(value.size())));
    return value;
}

} // namespace obrin
