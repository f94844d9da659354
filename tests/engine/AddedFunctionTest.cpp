// A function is one row: the engine with a row more in its table, and nothing else changed.

#include <gtest/gtest.h>

#include "engine/CalcEngine.h"
#include "engine/ExprParser.h"
#include "engine/FormulaProgram.h"

namespace vexa {
namespace {

CalcEngine Evaluated(std::wstring_view expression, BaseType base = BaseType::Dec) {
  CalcEngine engine;
  engine.baseMode = base;
  engine.EvaluateExpression(expression);
  return engine;
}

TEST(AddedFunction, IsKnownEverywhere) {
  EXPECT_DOUBLE_EQ(Evaluated(L"2*CBRT(27)+1").result, 7.0);
  EXPECT_DOUBLE_EQ(Evaluated(L"cbrt 8").result, 2.0);
  EXPECT_EQ(Evaluated(L"cbrt").errorText, L"(cbrt) needs an argument.");
  EXPECT_EQ(Evaluated(L"cbrt(-1)").errorText, L"cbrt exceeded calculation limit.");
  EXPECT_EQ(Evaluated(L"sin 30").result, Evaluated(L"sin(30)").result);
  EXPECT_EQ(Evaluated(L"cbrt(1)", BaseType::Oct).errorText, L"cbrt is not supported.");

  ExprParser parser;
  parser.Validate(L"cbrt(x)-1");
  EXPECT_EQ(parser.errorText, L"");
  FormulaValues outcome;
  const double xs[] = {64.0, -64.0};
  FormulaProgram(parser.Records()).Evaluate(xs, AngleType::Degrees, outcome);
  EXPECT_DOUBLE_EQ(outcome.values[0], 3.0);
  EXPECT_EQ(outcome.Sentence(1), L"cbrt exceeded calculation limit.");
}

}  // namespace
}  // namespace vexa
