// Any text as a formula of one, two or three variables; a valid one is evaluated as the plotter and
// the macros do it, with values put in for the variables.

#include <array>
#include <limits>

#include "FuzzInput.h"
#include "engine/ExprParser.h"

using namespace vexa;
using namespace vexa::fuzz;

namespace {

constexpr std::array kValues{0.0,
                             -0.0,
                             1.0,
                             -1.0,
                             0.5,
                             2.0,
                             30.0,
                             -2.5,
                             90.0,
                             -180.0,
                             149.0,
                             150.0,
                             1e300,
                             -1e300,
                             5e-324,
                             4294967295.0,
                             -std::numeric_limits<double>::infinity()};

bool IsVariable(const Token& token) {
  return token.isOperand && (token.op == 'x' || token.op == 'y' || token.op == 'z');
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  ExprParser parser;
  CalcEngine engine;
  parser.formulaType = static_cast<FormulaType>(input.TakeByte() % 3);
  input.TakeModes(engine.angleMode, engine.baseMode);
  engine.baseMode = BaseType::Dec;
  std::array<double, 3> values{};
  for (double& value : values) value = kValues[input.TakeByte() % kValues.size()];

  parser.Validate(input.TakeText());
  CheckRecords(parser);
  if (!parser.errorText.empty()) return 0;
  Promise(parser.tokenCount > 0, "a valid formula has records");

  const auto count = static_cast<std::size_t>(parser.tokenCount);
  std::array<bool, 3> used{};
  for (Token& token : std::span(parser.tokens).first(count)) {
    if (!IsVariable(token)) continue;
    const auto variable = static_cast<std::size_t>(token.op - 'x');
    used[variable] = true;
    token.op = 0;
    token.value = values[variable];
  }
  for (std::size_t i = 0; i < used.size(); ++i) {
    Promise(used[i] == (i <= static_cast<std::size_t>(parser.formulaType)),
            "a valid formula uses exactly its variables");
  }

  engine.LoadTokens(std::span(parser.tokens).first(count));
  engine.EvaluateTokens();
  CheckOutcome(engine);

  // The evaluation consumes the records; loading them again starts afresh.
  CalcEngine reloaded = engine;
  reloaded.LoadTokens(std::span(parser.tokens).first(count));
  reloaded.EvaluateTokens();
  CheckSame(reloaded, engine);
  return 0;
}
