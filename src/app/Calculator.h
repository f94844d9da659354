#pragma once

#include <string>
#include <string_view>

#include "app/History.h"
#include "display/DisplayType.h"
#include "display/SettingsStore.h"
#include "engine/CalcModes.h"
#include "macros/MacroTable.h"

namespace vexa {

/// The scientific calculator without its window: settings, answer, history and the "=" command.
class Calculator {
 public:
  /// Reads the settings, the macro table and the history. `store` must outlive the calculator.
  explicit Calculator(SettingsStore& store);
  /// Writes the settings and the history back.
  void Save() const;

  /// The "=" command on the edit line's text as it stands. Returns the text for the result line:
  /// the formatted answer, or the sentence of what went wrong.
  std::wstring Evaluate(std::wstring_view editText);
  /// Makes `target` the current base and returns the answer's text in it. A code outside the enum
  /// counts as decimal.
  std::wstring SetBase(BaseType target);
  /// Switches between degrees and radians.
  void ToggleAngle();
  /// The answer as the result line shows it.
  std::wstring AnswerText();
  /// What recalling history entry `index` (1 is the oldest) inserts into the edit line.
  std::wstring RecallHistory(int index);

  /// The sentence of the last "=" that failed; empty after a success.
  std::wstring lastError;
  /// The last successful result; 0 after a failure.
  double answer = 0.0;
  AngleType angleType;
  BaseType baseType;
  DisplayType displayType;
  int precision;
  /// The unit converter's last category and units; -1: none.
  int classPos, inputTypePos, outputTypePos;
  MacroTable macros;
  History history;

 private:
  SettingsStore& store;
};

}  // namespace vexa
