// The record of what reached this process, for whoever checks what was typed into it.
//
// One event a line, ended by CR LF:
//   start run core\start -5     the start arguments as they came
//   process 312                 the process's number
//   window                      the host's window stands
//   caption Obrin-05            its caption is the station's
//   down 76  /  up 76           a key message; " posted" follows if it was not sent by another thread's
//                               SendMessage, and its second parameter if that is not 0
//   line LOAD CORE\START        a completed line
//   hang LINE                   stops answering now
//   run CORE\PROGRAMS\X         the line before opened this program
//   system UB                   the line before started this system
//   unknown LINE                the line before means nothing here
//   exit                        the process ends
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace fenn {

class Log {
public:
    /// Appends to the file; an empty name, or one that cannot be opened, means no log.
    explicit Log(const std::string& fileName);
    ~Log();
    Log(const Log&) = delete;
    Log& operator=(const Log&) = delete;

    /// On return the line is in the file, so that it can be read at any time, even if this process hangs.
    void Write(std::string_view event, std::string_view details = {});

private:
    HANDLE file;
};

} // namespace fenn
