#include "Interpreter.h"

namespace fenn {

Interpreter::Deed Interpreter::Take(std::string_view line) {
    if (systemCodeComesNext) {
        systemCodeComesNext = false;
        if (line.size() != 2)
            return Deed::NotUnderstood;
        system = line;
        return Deed::StartSystem;
    }
    if (line.empty())
        return Deed::Nothing;
    if (line == "RUN")
        return RunLoaded();

    constexpr std::string_view load = "LOAD ";
    constexpr std::string_view run = "RUN ";
    if (line.starts_with(load) && line.size() > load.size()) {
        program = line.substr(load.size());
        return Deed::Nothing;
    }
    if (line.starts_with(run) && line.size() > run.size()) {
        program = line.substr(run.size());
        return RunLoaded();
    }
    return Deed::NotUnderstood;
}

Interpreter::Deed Interpreter::RunLoaded() {
    if (program.empty())
        return Deed::NotUnderstood;
    if (program == "CORE\\EXIT")
        return Deed::Exit;
    if (program == "CORE\\STARTSYS") {
        systemCodeComesNext = true;
        return Deed::Nothing;
    }
    return Deed::OpenProgram;
}

} // namespace fenn
