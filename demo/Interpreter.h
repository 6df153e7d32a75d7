// Interprets the lines that are typed into the host.
#pragma once

#include <string>
#include <string_view>

namespace fenn {

/// Knows the commands LOAD program, RUN and RUN program. RUN without a program runs the loaded one. The
/// program CORE\STARTSYS reads a system code from the next line, and CORE\EXIT ends the host. Commands must
/// be in capitals.
class Interpreter {
public:
    enum class Action { Nothing, OpenProgram, StartSystem, Exit, NotUnderstood };

    Action Interpret(std::string_view line);

    /// Returns the path of the loaded program; empty if there is none.
    [[nodiscard]] const std::string& Program() const { return program; }
    /// Returns the code of the current system; empty if there is none.
    [[nodiscard]] const std::string& System() const { return system; }

private:
    Action RunLoaded();

    std::string program;
    std::string system;
    bool expectsSystemCode = false;
};

} // namespace fenn
