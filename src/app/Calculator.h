#pragma once

#include <string>
#include <string_view>

#include "app/History.h"
#include "app/LineEvaluator.h"
#include "converter/UnitConverter.h"
#include "display/DisplayType.h"
#include "display/SettingsStore.h"
#include "engine/CalcModes.h"
#include "macros/MacroTable.h"

namespace vexa {

/// The scientific calculator without its window: settings, answer, history and the "=" command.
class Calculator {
 public:
  /// Reads the settings, the macro table and the history. `settingsStore` must outlive the
  /// calculator.
  explicit Calculator(SettingsStore& settingsStore);
  /// Writes the settings and the history back.
  void Save() const;

  /// The "=" command on the edit line's text as it stands: shows the formatted answer on the result
  /// line, or the sentence of what went wrong. Stores the history.
  void Evaluate(std::wstring_view editText);
  /// Makes `target` the current base, stores it and shows the answer in it. Nothing changes when it
  /// is current already.
  void SetBase(BaseType target);
  /// Switches between degrees and radians, and stores the new unit.
  void ToggleAngle();
  /// Changes and stores how numbers are shown, and shows the answer so. The sentence of a failure
  /// stays: there is no answer then.
  void SetDisplay(DisplayType type, int decimals);
  /// Adds the answer to the memory register, or subtracts it.
  void AddToMemory() { memory += answer; }
  void SubtractFromMemory() { memory -= answer; }
  void ClearMemory() { memory = 0.0; }
  /// The text that inserts `value`, of the register or of a memory variable, into the edit line: in
  /// the current base, without thousands separators. What is recalled never counts as the outcome
  /// of "=": one that cannot be shown leaves `lastError` alone.
  std::wstring RecallValueText(double value) const;
  /// The answer as memory variables keep it: decimal, without thousands separators.
  std::wstring MemoryVariableText() const;
  /// The text that the unit converter's input field starts with.
  std::wstring ConverterInput() const;
  /// Takes the converter's last positions, which are stored, and the memory register back.
  void TakeFromConverter(const ConverterPositions& positions, double memoryValue);
  /// What recalling history entry `index` (1 is the oldest) inserts into the edit line.
  std::wstring RecallHistory(int index) const;

  /// The result line's text.
  std::wstring resultLine = L"0";
  /// The sentence of the last "=" that failed; empty after a success.
  std::wstring lastError;
  /// The last successful result; 0 after a failure.
  double answer = 0.0;
  /// The memory register; lives as long as the calculator.
  double memory = 0.0;
  AngleType angleType;
  BaseType baseType;
  DisplayType displayType;
  int precision;
  /// The unit converter's last category and units.
  ConverterPositions converterPositions;
  MacroTable macros;
  History history;

 private:
  /// The steps of "=" up to what it remembers.
  void Compute(const std::wstring& typed);
  void WritePositions() const;
  void ShowAnswer();

  SettingsStore& store;
  LineEvaluator evaluator;
};

}  // namespace vexa
