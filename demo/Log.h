// Logs what this process receives. Tests read the log.
//
// Each event is a line that ends with CR LF:
//   start run core\start -5     the start arguments
//   process 312                 the process id
//   window                      the host's window is open
//   caption Obrin-05            the host sets this caption
//   down 76  /  up 76           a key message, followed by "posted" if it was not sent by SendMessage from
//                               another thread, and by its lParam if that is not 0
//   line LOAD CORE\START        a completed line
//   hang LINE                   the host hangs because of this line
//   run CORE\PROGRAMS\X         the last line opens this program
//   system UB                   the last line starts this system
//   unknown LINE                the last line is not a command
//   exit                        the process ends
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace fenn {

class Log {
public:
    /// Appends to the file. Writes no log if the name is empty or the file cannot be opened.
    explicit Log(const std::string& fileName);
    ~Log();
    Log(const Log&) = delete;
    Log& operator=(const Log&) = delete;

    /// Writes a line. A test can read it at once, even if this process hangs afterwards.
    void Write(std::string_view event, std::string_view details = {});

private:
    HANDLE file;
};

} // namespace fenn
