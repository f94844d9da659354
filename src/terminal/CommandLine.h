#pragma once

#include <optional>
#include <string>
#include <vector>

#include "terminal/Command.h"

namespace vexa::terminal {

/// What a command line asks for: a command with what is given to it, or a text to be shown.
struct Request {
  /// Null: `text` says it all.
  const Command* command = nullptr;
  Given given{};
  /// Help, the version, or what is wrong.
  std::string text{};
  int status = kDone;
};

/// Reads the words of a command line, the program's name left out. Words that name no command are
/// expressions.
Request ReadCommandLine(std::vector<std::string> words);

/// The code of the choice that `word` names, by its beginning and in any case; none: there is none,
/// or there are several.
std::optional<int> FindChoice(std::span<const Choice> choices, std::string_view word);

}  // namespace vexa::terminal
