#pragma once

#include "engine/CalcModes.h"
#include "toolkit/Key.h"

namespace vexa {

/// The rule state that decides which keys of an expression's keypad are shown and enabled.
struct KeypadState {
  AngleType angleType = AngleType::Degrees;
  bool historyIsEmpty = true;
  BaseType base = BaseType::Dec;
  /// Which of the two layers is visible.
  bool shifted = false;
};

/// Of the keys that share a cell, the one that `state` shows.
bool IsKeyShown(const Key& key, const KeypadState& state);
/// True unless the key is shown but inert.
bool IsKeyEnabled(const Key& key, const KeypadState& state);

}  // namespace vexa
