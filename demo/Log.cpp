#include "Log.h"

namespace fenn {

Log::Log(const std::string& fileName)
    : file(fileName.empty() ? INVALID_HANDLE_VALUE
                            : CreateFileA(fileName.c_str(), FILE_APPEND_DATA,
                                          FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                          OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr)) {}

Log::~Log() {
    if (file != INVALID_HANDLE_VALUE)
        CloseHandle(file);
}

void Log::Write(std::string_view event, std::string_view details) {
    if (file == INVALID_HANDLE_VALUE)
        return;
    std::string line(event);
    if (!details.empty())
        line.append(" ").append(details);
    line.append("\r\n");
    // Writes each line in one call, so that two processes can share a log.
    DWORD written = 0;
    WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
}

} // namespace fenn
