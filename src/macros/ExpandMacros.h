#pragma once

#include <string>
#include <string_view>

#include "engine/CalcModes.h"
#include "macros/MacroTable.h"

namespace vexa {

/// What becomes of an expression's macro calls.
struct MacroExpansion {
  /// The expression with every call replaced by its value with six decimals.
  std::wstring expression;
  /// The sentence that stopped the expansion; empty: none.
  std::wstring error;
  /// The text of the last call's value, empty when there was no call. An expression that equals it
  /// was a single call, whose value is `lastResult` at full precision.
  std::wstring lastMacroText;
  double lastResult = 0.0;
};

/// Replaces the calls "M:" name "(" arguments ")" in `expression`, from left to right, stopping at
/// the first error. Arguments are evaluated in `angleMode` and `baseMode`, formulas always in
/// decimal.
MacroExpansion ExpandMacros(std::wstring_view expression, const MacroTable& macros,
                            AngleType angleMode, BaseType baseMode);

}  // namespace vexa
