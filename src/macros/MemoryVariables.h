#pragma once

#include <string>
#include <string_view>

#include "display/SettingsStore.h"

namespace vexa {

/// The twenty numbered values that survive restarts. Every change is written to the store at once.
class MemoryVariables {
 public:
  static constexpr int kCount = 20;

  static constexpr std::wstring_view kSelectMessage = L"Please select a memory variable";
  static constexpr std::wstring_view kClearQuestion =
      L"Are you sure you want to clear all variable?";

  /// Works on `settingsStore`, which must outlive the object.
  explicit MemoryVariables(SettingsStore& settingsStore) : store(settingsStore) {}

  /// The text kept in slot `index`, 0 to kCount - 1.
  std::wstring Text(int index) const;
  /// The number in slot `index`; 0 when its text is none, infinite when it is too large.
  double Value(int index) const;
  /// Puts the number in slot `index` into `text` as a formula can hold it: without separators and
  /// blanks; "0" when there is no number. A number that is too large leaves `text` as it is, and
  /// the sentence that says so is returned; empty: success.
  std::wstring FormulaText(int index, std::wstring& text) const;
  /// Slot `index` as the list shows it: Mem01 = 2.5
  std::wstring Line(int index) const;
  void Store(int index, std::wstring_view text);
  /// Sets every slot to "0".
  void ClearAll();

 private:
  SettingsStore& store;
};

}  // namespace vexa
