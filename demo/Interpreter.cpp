#include "Interpreter.h"

namespace fenn {

Interpreter::Action Interpreter::Interpret(std::string_view line) {
    if (expectsSystemCode) {
        expectsSystemCode = false;
        if (line.size() != 2)
            return Action::NotUnderstood;
        system = line;
        return Action::StartSystem;
    }
    if (line.empty())
        return Action::Nothing;
    if (line == "RUN")
        return RunLoaded();

    constexpr std::string_view load = "LOAD ";
    constexpr std::string_view run = "RUN ";
    if (line.starts_with(load) && line.size() > load.size()) {
        program = line.substr(load.size());
        return Action::Nothing;
    }
    if (line.starts_with(run) && line.size() > run.size()) {
        program = line.substr(run.size());
        return RunLoaded();
    }
    return Action::NotUnderstood;
}

Interpreter::Action Interpreter::RunLoaded() {
    if (program.empty())
        return Action::NotUnderstood;
    if (program == "CORE\\EXIT")
        return Action::Exit;
    if (program == "CORE\\STARTSYS") {
        expectsSystemCode = true;
        return Action::Nothing;
    }
    return Action::OpenProgram;
}

} // namespace fenn
