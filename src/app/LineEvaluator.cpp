#include "app/LineEvaluator.h"

#include <algorithm>

#include "macros/ExpandMacros.h"

namespace vexa {
namespace {

std::wstring_view Trimmed(std::wstring_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(L' '), text.size()));
  text.remove_suffix(text.size() - (text.find_last_not_of(L' ') + 1));
  return text;
}

}  // namespace

LineOutcome LineEvaluator::Evaluate(std::wstring_view line, const MacroTable& macros,
                                    AngleType angle, BaseType base) {
  value = 0.0;
  error.clear();
  const std::wstring_view expression = Trimmed(line);
  if (expression.empty()) {
    error = kNoExpression;
    return LineOutcome::Empty;
  }
  const MacroExpansion expansion = ExpandMacros(expression, macros, angle, base);
  if (!expansion.error.empty()) {
    error = expansion.error;
    return LineOutcome::MacroError;
  }
  // A single macro call keeps the full precision of the macro's own evaluation.
  if (expansion.expression == expansion.lastMacroText) {
    value = expansion.lastResult;
    return LineOutcome::Value;
  }
  engine.angleMode = angle;
  engine.baseMode = base;
  engine.EvaluateExpression(expansion.expression);
  if (!engine.errorText.empty()) {
    error = engine.errorText;
    return LineOutcome::EngineError;
  }
  value = engine.result;
  return LineOutcome::Value;
}

}  // namespace vexa
