#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/LineEvaluator.h"
#include "macros/MacroTable.h"
#include "terminal/NumberOptions.h"

namespace vexa::terminal {

/// What a line gives.
struct LineAnswer {
  /// What is shown: the result, or what a command has to say. Empty after a failure.
  std::wstring shown{};
  /// The sentence of what is wrong; empty: success.
  std::wstring error{};
  /// Where in the line it is wrong; none: not known.
  std::optional<std::size_t> place{};
  double value = 0.0;
};

/// Takes lines one after the other: expressions, and commands that change how the next ones are
/// read and shown (":base hex").
class CalculatorLines {
 public:
  CalculatorLines(SettingsStore& settingsStore, const NumberModes& firstModes);

  /// Evaluates an expression.
  LineAnswer Evaluate(std::wstring_view expression);
  /// The same, or runs a command.
  LineAnswer Take(std::wstring_view line);

  const NumberModes& Modes() const { return modes; }

 private:
  LineAnswer RunCommand(std::wstring_view line);
  LineAnswer ShowAnswer() const;
  LineAnswer Convert(std::wstring_view line);

  SettingsStore& store;
  MacroTable macros;
  NumberModes modes;
  LineEvaluator evaluator;
};

/// The commands and what they do.
std::wstring_view LineCommandsHelp();
/// Their names.
std::vector<std::string_view> LineCommandNames();

}  // namespace vexa::terminal
