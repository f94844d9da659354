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

using Values = std::array<double, 3>;

Values TakeValues(FuzzInput& input) {
  Values values{};
  for (double& value : values) value = kValues[input.TakeByte() % kValues.size()];
  return values;
}

/// The number of the variable that a record stands for: 0 for x, 1 for y, 2 for z; -1: none.
int Variable(const Token& token) {
  return token.isOperand == 1 && token.op >= 'x' && token.op <= 'z' ? token.op - 'x' : -1;
}

std::span<const Token> Records(const ExprParser& parser) {
  return std::span(parser.tokens).first(static_cast<std::size_t>(parser.tokenCount));
}

void CheckVariables(const ExprParser& parser) {
  std::array<bool, 3> used{};
  for (const Token& token : Records(parser)) {
    if (Variable(token) >= 0) used[static_cast<std::size_t>(Variable(token))] = true;
  }
  for (std::size_t i = 0; i < used.size(); ++i) {
    Promise(used[i] == (i <= static_cast<std::size_t>(parser.formulaType)),
            "a valid formula uses exactly its variables");
  }
}

void Evaluate(const ExprParser& parser, const Values& values, CalcEngine& engine) {
  engine.LoadTokens(Records(parser));
  for (Token& token : std::span(engine.tokens).first(Records(parser).size())) {
    const int variable = Variable(token);
    if (variable < 0) continue;
    token.op = 0;
    token.value = values[static_cast<std::size_t>(variable)];
  }
  engine.EvaluateTokens();
  CheckOutcome(engine);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  ExprParser parser;
  CalcEngine engine;
  parser.formulaType = static_cast<FormulaType>(input.TakeByte() % 3);
  input.TakeModes(engine.angleMode, engine.baseMode);
  engine.baseMode = BaseType::Dec;
  CalcEngine freshEngine = engine;
  const Values values = TakeValues(input);
  const Values otherValues = TakeValues(input);

  parser.Validate(input.TakeText());
  CheckRecords(parser);
  if (!parser.errorText.empty()) return 0;
  CheckVariables(parser);

  // An engine that goes from sample to sample comes to the same end as one that starts afresh.
  Evaluate(parser, values, engine);
  Evaluate(parser, otherValues, engine);
  Evaluate(parser, otherValues, freshEngine);
  CheckSame(engine, freshEngine);
  engine.EvaluateExpression(L"(1+2)*sin(3)-4^5");
  Evaluate(parser, otherValues, engine);
  CheckSame(engine, freshEngine);
  return 0;
}
