#include "macros/ExpandMacros.h"

#include <array>
#include <optional>
#include <span>

#include "display/NumberPatterns.h"
#include "engine/CalcEngine.h"
#include "engine/ExprParser.h"
#include "macros/MacroCallText.h"

namespace vexa {
namespace {

/// Decimals of a value that is put back into the expression.
constexpr int kValueDecimals = 6;

constexpr std::size_t kMaxArguments = 3;
using Arguments = std::array<double, kMaxArguments>;

/// Evaluates the arguments of a call of a macro with `count` arguments; none when one is missing,
/// left over or no value.
std::optional<Arguments> EvaluateArguments(const MacroCallText& call, std::size_t count,
                                           CalcEngine& engine) {
  if (call.commas != count - 1) return std::nullopt;
  Arguments values{};
  std::wstring_view rest = call.arguments;
  for (std::size_t i = 0; i < count; ++i) {
    const bool last = i + 1 == count;
    const std::size_t comma = last ? rest.size() : rest.find(L',');
    if (comma == std::wstring_view::npos) return std::nullopt;
    engine.EvaluateExpression(rest.substr(0, comma));
    if (!engine.errorText.empty()) return std::nullopt;
    values[i] = engine.result;
    if (!last) rest.remove_prefix(comma + 1);
  }
  return values;
}

/// Puts the arguments in the places of the variables.
void SubstituteVariables(std::span<Token> tokens, const Arguments& values) {
  for (Token& token : tokens) {
    if (token.isOperand != 1 || token.op == 0) continue;
    token.value = values[static_cast<std::size_t>(token.op - 'x')];
    token.op = 0;
  }
}

/// Evaluates calls, one at a time.
class CallEvaluator {
 public:
  CallEvaluator(const MacroTable& table, AngleType angle, BaseType base) : macros(table) {
    argumentEngine.angleMode = angle;
    argumentEngine.baseMode = base;
    // A formula is decimal whatever the base of its call.
    formulaEngine.angleMode = angle;
  }

  /// Finds the value of `call`. Returns the sentence of a failure; empty: success.
  std::wstring Evaluate(const MacroCallText& call, double& value) {
    const std::optional<int> index = macros.Find(call.name);
    if (!index) return std::wstring(kMacroNameError);
    const FormulaType type = MacroTypeOf(macros.At(*index).type).formulaType;
    const auto values = EvaluateArguments(call, static_cast<std::size_t>(type) + 1, argumentEngine);
    if (!values) return std::wstring(kMacroArgumentError);
    parser.formulaType = type;
    parser.Validate(macros.ReadFormula(*index));
    if (!parser.errorText.empty()) return std::wstring(kMacroFormulaError);
    formulaEngine.LoadTokens(parser.Records());
    SubstituteVariables(formulaEngine.tokens, *values);
    formulaEngine.EvaluateTokens();
    value = formulaEngine.result;
    return formulaEngine.errorText;
  }

 private:
  const MacroTable& macros;
  CalcEngine argumentEngine;
  CalcEngine formulaEngine;
  ExprParser parser;
};

}  // namespace

MacroExpansion ExpandMacros(std::wstring_view expression, const MacroTable& macros,
                            AngleType angleMode, BaseType baseMode) {
  MacroExpansion expansion;
  std::size_t mark = expression.find(kMacroCallMark);
  if (mark == std::wstring_view::npos) {
    expansion.expression = expression;
    return expansion;
  }
  // Only the first call's left neighbour is tested; the engine sees the others'.
  if (!MayPrecedeCall(expression.substr(0, mark))) {
    expansion.error = kExpressionErrorText;
    return expansion;
  }
  CallEvaluator evaluator(macros, angleMode, baseMode);
  // A value's text never holds or completes a call mark, so one walk finds the same calls as a
  // search from the start after each.
  while (mark != std::wstring_view::npos) {
    expansion.expression += expression.substr(0, mark);
    expression.remove_prefix(mark + kMacroCallMark.size());
    const std::optional<MacroCallText> call = ReadMacroCall(expression);
    if (!call) {
      expansion.error = kExpressionErrorText;
      return expansion;
    }
    double value = 0.0;
    expansion.error = evaluator.Evaluate(*call, value);
    if (!expansion.error.empty()) return expansion;
    expansion.lastResult = value;
    expansion.lastMacroText = FixedText(value, kValueDecimals);
    expansion.expression += expansion.lastMacroText;
    expression.remove_prefix(call->length);
    mark = expression.find(kMacroCallMark);
  }
  expansion.expression += expression;
  return expansion;
}

}  // namespace vexa
