#pragma once

#include "terminal/Console.h"
#include "terminal/NumberOptions.h"

namespace vexa::terminal {

/// Reads lines from the user at a terminal, with editing, history and completion, and answers each.
int RunPrompt(Console& console, const NumberModes& modes);

}  // namespace vexa::terminal
