#pragma once

#include <span>

#include "engine/CalcModes.h"
#include "toolkit/Key.h"

namespace vexa {

/// The rule state that decides which of the calculator's keys are shown and enabled.
struct CalculatorKeypadState {
  AngleType angleType = AngleType::Degrees;
  bool historyIsEmpty = true;
};

/// The calculator's keys. Keys that take each other's place share a cell.
std::span<const Key> CalculatorKeys();

/// Of the keys that share a cell, the one that `state` shows.
bool IsKeyShown(const Key& key, const CalculatorKeypadState& state);
/// True unless the key is shown but inert.
bool IsKeyEnabled(const Key& key, const CalculatorKeypadState& state);

/// The name of an integer base, or of decimal.
std::wstring_view BaseName(BaseType base);

}  // namespace vexa
