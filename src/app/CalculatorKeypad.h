#pragma once

#include <span>

#include "engine/CalcModes.h"
#include "toolkit/Key.h"

namespace vexa {

/// The rule state that decides which of the calculator's keys are shown and enabled.
struct CalculatorKeypadState {
  AngleType angleType = AngleType::Degrees;
  bool historyIsEmpty = true;
  BaseType base = BaseType::Dec;
  /// Which of the two layers is visible.
  bool shifted = false;
};

/// The calculator's keys. Keys that take each other's place share a cell.
std::span<const Key> CalculatorKeys();

/// Of the keys that share a cell, the one that `state` shows.
bool IsKeyShown(const Key& key, const CalculatorKeypadState& state);
/// True unless the key is shown but inert.
bool IsKeyEnabled(const Key& key, const CalculatorKeypadState& state);

/// A base as the menu of bases offers it.
struct BaseChoice {
  BaseType base;
  std::wstring_view name;
};

/// The menu's title and its entries, from top to bottom.
inline constexpr std::wstring_view kBaseMenuTitle = L"MODE";
inline constexpr BaseChoice kBaseMenu[] = {{BaseType::Bin, L"Binary"},
                                           {BaseType::Oct, L"Octal"},
                                           {BaseType::Dec, L"Decimal"},
                                           {BaseType::Hex, L"Hexadecimal"}};

}  // namespace vexa
