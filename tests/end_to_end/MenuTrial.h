// Uses the menu of an installation as an operator would, and finds out what stops it.
#pragma once

#include "checker/Finding.h"

#include <ostream>

namespace obrin {

/// For messages of failing tests.
void PrintTo(Effect effect, std::ostream* output);

} // namespace obrin

namespace obrin::test {

/// Starts the menu in the current folder, shows up to five systems, runs a program, opens the Properties of
/// the programs among the first ten entries, confirms each with OK, and closes the menu. Returns what stops
/// it first, or Effect::None. Waits only 1.5 seconds for the window if `expected` is WaitsForEver.
Effect TryMenu(Effect expected);

/// Returns the effect of the findings that stops the menu first, or Effect::None.
Effect PredictedEffect(const Findings& findings);

} // namespace obrin::test
