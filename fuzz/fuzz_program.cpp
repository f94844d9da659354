// A formula's program against the engine's reduction of its records, bit for bit and sentence for
// sentence: any text as a formula, one record of it changed, at any numbers. Records that no valid
// formula has are compared, too.

#include <array>
#include <cstring>
#include <vector>

#include "FuzzInput.h"
#include "engine/ExprParser.h"
#include "engine/FormulaProgram.h"

using namespace vexa;
using namespace vexa::fuzz;

namespace {

constexpr std::size_t kSamples = 5;

double TakeNumber(FuzzInput& input) {
  constexpr std::array kNumbers{0.0, -0.0, 1.0, 2.0, 3.0, -2.5, 90.0, 180.0, 149.0, 1e308, 5e-324};
  const std::uint8_t choice = input.TakeByte();
  if (choice < kNumbers.size()) return kNumbers[choice];
  std::array<std::uint8_t, sizeof(double)> bytes;
  for (std::uint8_t& byte : bytes) byte = input.TakeByte();
  return std::bit_cast<double>(bytes);
}

/// Any record, of those that the parser makes.
Token TakeRecord(FuzzInput& input) {
  const std::uint8_t byte = input.TakeByte();
  if (byte < 128) return {.op = static_cast<signed char>(byte), .kind = kOperatorKind};
  if (byte < 160) return {.op = 'F', .funcCode = byte - 128 + 30, .kind = kFunctionKind};
  if (byte < 200) return {.op = byte % 2 == 0 ? '(' : ')', .kind = kParenthesisKind};
  return {.isOperand = 1, .value = TakeNumber(input)};
}

CalcEngine Reduced(std::span<const Token> formula, double x, AngleType angle) {
  CalcEngine engine;
  engine.angleMode = angle;
  engine.LoadTokens(formula);
  for (Token& token : std::span(engine.tokens).first(formula.size())) {
    if (token.isOperand != 1 || token.op != 'x') continue;
    token.op = 0;
    token.value = x;
  }
  engine.EvaluateTokens();
  return engine;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  AngleType angle;
  BaseType base;
  input.TakeModes(angle, base);
  std::array<double, kSamples> xs;
  for (double& x : xs) x = TakeNumber(input);
  const std::uint8_t place = input.TakeByte();
  const Token changed = TakeRecord(input);
  ExprParser parser;
  parser.Validate(input.TakeText());
  std::vector<Token> formula(parser.Records().begin(), parser.Records().end());
  if (place < formula.size()) formula[place] = changed;

  FormulaValues outcome;
  FormulaProgram(formula).Evaluate(xs, angle, outcome);
  for (std::size_t i = 0; i < xs.size(); ++i) {
    const CalcEngine expected = Reduced(formula, xs[i], angle);
    CheckOutcome(expected);
    Promise(SameValue(outcome.values[i], expected.result), "the program has the engine's value");
    Promise(outcome.Sentence(i) == expected.errorText, "the program has the engine's sentence");
  }
  return 0;
}
