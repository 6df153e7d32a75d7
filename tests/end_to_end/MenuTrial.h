// What the menu does in an installation, tried out in the order in which an operator would.
#pragma once

#include "checker/Finding.h"

#include <ostream>

namespace obrin {

/// For messages of failing tests.
void PrintTo(Effect effect, std::ostream* output);

} // namespace obrin

namespace obrin::test {

/// Starts the menu in the current folder, shows every system, runs a program, opens the Properties of each
/// program and says OK there, and closes it. Returns what stops it first, or Effect::None. `expected` saves
/// the time to wait for a window that never comes.
Effect TryMenu(Effect expected);

/// The first thing that findings say will stop it.
Effect Predicted(const Findings& findings);

} // namespace obrin::test
