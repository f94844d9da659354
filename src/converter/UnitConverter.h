#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "converter/UnitTables.h"
#include "converter/UserConversions.h"
#include "display/DisplayType.h"
#include "display/SettingsStore.h"

namespace vexa {

/// What the screen says, with the error icon, when the user's conversions are chosen and there are
/// none; their editor opens next.
inline constexpr std::wstring_view kNoUserConversions = L"Not exist saved user-define unit convert";

/// Decimals of the converter's numbers, whatever the calculator's display settings are.
inline constexpr int kConverterPrecision = 12;

/// The text that the calculator hands to the converter's input field: its answer in its display
/// settings, never grouped; "1" when the answer is zero or `calculatorError` is not empty.
std::wstring ConverterInputText(double answer, std::wstring_view calculatorError,
                                DisplayType displayType, int precision);

/// Positions in the three lists; -1: none.
struct ConverterPositions {
  int category = -1;
  int input = -1;
  int output = -1;

  bool operator==(const ConverterPositions&) const = default;
};

/// Which controls show the result.
enum class ConverterLayout {
  Factor,     ///< the output line and the output unit list
  SingleList  ///< the output block; the input list holds whole conversions
};

/// What the screen does after a category was chosen.
enum class CategoryOutcome {
  Shown,
  /// Say kNoUserConversions, open the editor, then call ReloadUserConversions.
  NoUserConversions
};

/// The unit converter without its window: what its controls hold, and its commands.
class UnitConverter {
 public:
  /// `settingsStore`, which holds the user's conversions, must outlive the converter.
  explicit UnitConverter(SettingsStore& settingsStore) : userConversions(settingsStore) {}

  /// Opens on stored positions, which may be any integers, and converts. A category that does not
  /// exist opens the first one; a unit that does not exist is not selected and nothing is
  /// converted, except that the user's conversions fall back to their first entry, and without any
  /// to the first category.
  void Open(const ConverterPositions& stored, double memoryValue, std::wstring_view text);
  /// A new selection in the category list, -1 to 14: both unit lists start at their first entry.
  CategoryOutcome ChangeCategory(int category);
  /// Reads the user's conversions again after their editor has closed. Where their category is
  /// chosen it is shown anew, with the same conversion selected if it still exists, or the first
  /// category when there is none to show.
  void ReloadUserConversions();

  /// A new selection in the input list.
  void ChooseInput(int position);
  /// A new selection in the output list.
  void ChooseOutput(int position);
  /// A new text of the input field.
  void EnterText(std::wstring_view text);

  /// Adds the result to the memory.
  void MemoryPlus() { memory = result + memory; }
  /// Subtracts the result from the memory.
  void MemoryMinus() { memory = memory - result; }
  void MemoryClear() { memory = 0.0; }
  /// Puts the memory, without grouping, into the input field and converts it.
  void MemoryRecall();
  /// Puts the number of a memory variable into the input field and converts it.
  void RecallVariable(double value) { EnterText(Formatted(value)); }

  /// The "OK" command: empty when the screen closes, with a result or because no units are
  /// selected, else the sentence that keeps it open.
  std::wstring_view Accept() const;

  /// What the three lists show.
  const ConverterPositions& Selection() const { return selection; }
  /// What the calculator takes back: what is selected, whether or not the text could be converted.
  /// Without an input unit there is no output unit either; a whole conversion has the first.
  const ConverterPositions& Positions() const { return positions; }
  /// What the unit lists hold.
  const std::vector<std::wstring>& InputUnits() const { return inputUnits; }
  const std::vector<std::wstring>& OutputUnits() const { return outputUnits; }
  ConverterLayout Layout() const { return layout; }
  const std::wstring& InputText() const { return inputText; }
  /// What stands quietly beside the input field: empty, or why its text was not converted. The
  /// previous result stays shown, but is none to work with.
  const std::wstring& InputNotice() const { return inputNotice; }
  const std::wstring& OutputLine() const { return outputLine; }
  const std::wstring& OutputBlock() const { return outputBlock; }
  double Result() const { return result; }
  double Memory() const { return memory; }
  /// The last number formatted here, after a conversion the result: what "Store MemVar" stores.
  const std::wstring& ResultText() const { return resultText; }
  /// The result as "OK" hands it to an expression, which reads no grouping; empty without a result.
  std::wstring ExpressionText() const;
  /// Empty, or the overflow sentence.
  const std::wstring& LastError() const { return lastError; }
  /// Whether the units and the text that are shown have a result. Otherwise the lines of the "MEM"
  /// menu that need one are left out.
  bool HasResult() const { return HasSelection() && inputNotice.empty() && lastError.empty(); }
  /// Whether what is shown in the result's place is left from before.
  bool IsResultStale() const { return !HasResult() && lastError.empty(); }

 private:
  void LoadCategory(int category);
  void ShowUnits(int input);
  bool HasSelection() const;
  void Convert();
  void ConvertUnits(double value);
  void ConvertWhole(double value);
  std::wstring Formatted(double value);

  UserConversions userConversions;
  ConverterPositions selection;
  ConverterPositions positions;
  std::vector<std::wstring> inputUnits;
  std::vector<std::wstring> outputUnits;
  ConverterLayout layout = ConverterLayout::Factor;
  std::wstring inputText;
  std::wstring inputNotice;
  std::wstring outputLine = L"0";
  std::wstring outputBlock;
  std::wstring resultText;
  std::wstring lastError;
  double result = 0.0;
  double memory = 0.0;
};

}  // namespace vexa
