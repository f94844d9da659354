#pragma once

#include <string>
#include <string_view>

#include "engine/CalcEngine.h"
#include "macros/MacroTable.h"

namespace vexa {

/// How the evaluation of a line ended.
enum class LineOutcome {
  Value,
  Empty,        ///< nothing but blanks
  MacroError,   ///< a macro call could not be replaced by its value
  EngineError,  ///< the engine refused the expression
};

/// Evaluates lines as "=" does, one after the other.
class LineEvaluator {
 public:
  // An empty line's error and what is shown for it differ; meant.
  static constexpr std::wstring_view kNoExpression = L"There is no expression.";
  static constexpr std::wstring_view kNullExpression = L"Expression is null.";

  /// Evaluates `line`, less the blanks around it, then `value` or `error` holds the outcome.
  LineOutcome Evaluate(std::wstring_view line, const MacroTable& macros, AngleType angle,
                       BaseType base);

  /// The value of the last line; 0 after a failure.
  double value = 0.0;
  /// The sentence of what was wrong with the last line; empty: success.
  std::wstring error;

 private:
  CalcEngine engine;
};

}  // namespace vexa
