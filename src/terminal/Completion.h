#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "display/SettingsStore.h"

namespace vexa::terminal {

/// What a half-written text may become: texts that take the place of its end.
struct Completions {
  /// Where in the text that end begins.
  std::size_t start = 0;
  std::vector<std::string> texts{};
};

/// For an expression up to the cursor: functions, macros, at its beginning commands, and units
/// behind ":convert".
Completions CompleteLine(std::string_view text, SettingsStore& store);

/// For the words of a command line, the last one half-written and maybe empty; the texts take the
/// place of the whole last word. "<file>" stands for names of files.
Completions CompleteWords(const std::vector<std::string>& words, SettingsStore& store);

/// What all texts begin with.
std::string CommonBeginning(const std::vector<std::string>& texts);

}  // namespace vexa::terminal
