#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "toolkit/Modes.h"

namespace vexa {

/// What the program was asked for when it was started.
struct CommandLine {
  std::optional<Mode> mode;  ///< the mode to show; none: the one shown last
  std::string answer;        ///< for standard output, then the program ends with success
  std::string error;         ///< for standard error, then the program ends with kWrongUse
};

/// Exit status of a start with an option that the program does not know.
inline constexpr int kWrongUse = 2;

/// The mode with this word, or none.
std::optional<Mode> ModeOfWord(std::string_view word);

/// Reads the arguments that follow the program's name. Needs no display. The toolkit's own options
/// (a single dash, such as -style) are left to the toolkit, with the value that follows them.
CommandLine ReadCommandLine(std::span<const std::string_view> arguments);

}  // namespace vexa
