#pragma once

#include <string>
#include <string_view>

#include "terminal/Command.h"

namespace vexa::terminal {

/// What the program does and which commands it has.
std::string Overview();
/// The commands whose names begin with `group`.
std::string GroupOverview(std::string_view group);
/// How a command is used: its words, its options, examples.
std::string HelpOf(const Command& command);

/// A command's words in one line: vexa macro show NAME
std::string UsageOf(const Command& command);
/// An option's names and value: -b, --base BASE
std::string NamesAndValue(const Option& option);

/// What the program is, in one sentence, and how it takes expressions; also of the manual page.
inline constexpr std::string_view kDescription =
    "An exact scientific calculator. It shares macros, memory variables, unit conversions and "
    "settings with the desktop program Vexa Calculator.";
inline constexpr std::string_view kOverviewExamples =
    "  vexa '2+3*4'                     prints 14\n"
    "  vexa                             a prompt, in a terminal\n"
    "  vexa convert 12.5 Kilometers Miles\n"
    "  vexa plot 'sin(x)*5' --x -360 360\n"
    "  seq 10 | vexa stats -\n";

}  // namespace vexa::terminal
