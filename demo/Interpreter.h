// What typed lines mean to the host.
#pragma once

#include <string>
#include <string_view>

namespace fenn {

/// Understands LOAD program, RUN (the loaded program), RUN program, and the system code that the program
/// CORE\STARTSYS reads from the next line. Capitals only, because the keys of letters are their capitals: a
/// small letter's code is another key.
class Interpreter {
public:
    enum class Action { Nothing, OpenProgram, StartSystem, Exit, NotUnderstood };

    Action Interpret(std::string_view line);

    /// The loaded program's path; empty before the first.
    [[nodiscard]] const std::string& Program() const { return program; }
    /// The current system's code; empty before the first.
    [[nodiscard]] const std::string& System() const { return system; }

private:
    Action RunLoaded();

    std::string program;
    std::string system;
    bool systemCodeComesNext = false;
};

} // namespace fenn
