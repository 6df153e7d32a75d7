// A file that is held open, as another program may do.
#pragma once

#include "platform/Handle.h"

#include <string>
#include <thread>

namespace obrin::test {

class HeldFile {
public:
    /// Opens the file for reading; `share` is what others may do meanwhile (FILE_SHARE_...).
    HeldFile(const std::string& path, DWORD share)
        : handle(CreateFileA(path.c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING, 0, nullptr)) {}

    /// Returns at once. A thread closes the file after this time.
    void ReleaseAfter(DWORD milliseconds) {
        releaser = std::jthread([this, milliseconds] {
            Sleep(milliseconds);
            handle.reset();
        });
    }

private:
    UniqueHandle handle;
    std::jthread releaser;
};

} // namespace obrin::test
