#include "app/LineEvaluator.h"

#include <gtest/gtest.h>

#include "display/MemorySettingsStore.h"

namespace vexa {
namespace {

class LineEvaluatorTest : public testing::Test {
 protected:
  LineEvaluatorTest() : macros(store) { macros.AddMacro(L"third", L"TYPE1 : F(X)", L"x/3"); }

  LineOutcome Evaluate(std::wstring_view line, BaseType base = BaseType::Dec) {
    return evaluator.Evaluate(line, macros, AngleType::Degrees, base);
  }

  MemorySettingsStore store;
  MacroTable macros;
  LineEvaluator evaluator;
};

TEST_F(LineEvaluatorTest, ValuesOneAfterTheOther) {
  EXPECT_EQ(Evaluate(L" 2+3*4 "), LineOutcome::Value);
  EXPECT_EQ(evaluator.value, 14.0);
  EXPECT_EQ(Evaluate(L"ff", BaseType::Hex), LineOutcome::Value);
  EXPECT_EQ(evaluator.value, 255.0);
}

TEST_F(LineEvaluatorTest, SingleMacroCallKeepsItsPrecision) {
  EXPECT_EQ(Evaluate(L"M:third(1)"), LineOutcome::Value);
  EXPECT_EQ(evaluator.value, 1.0 / 3.0);
  EXPECT_EQ(Evaluate(L"3*M:third(1)"), LineOutcome::Value);
  EXPECT_EQ(evaluator.value, 0.999999);
}

TEST_F(LineEvaluatorTest, FailuresAreForgottenByTheNextLine) {
  EXPECT_EQ(Evaluate(L"1/0"), LineOutcome::EngineError);
  EXPECT_EQ(evaluator.error, L"Division exceeded calculation limit.");
  EXPECT_EQ(evaluator.value, 0.0);
  EXPECT_EQ(Evaluate(L"M:none(1)"), LineOutcome::MacroError);
  EXPECT_EQ(evaluator.error, L"Macro Name error");
  EXPECT_EQ(Evaluate(L"  "), LineOutcome::Empty);
  EXPECT_EQ(evaluator.error, L"There is no expression.");
  EXPECT_EQ(Evaluate(L"7"), LineOutcome::Value);
  EXPECT_EQ(evaluator.error, L"");
}

}  // namespace
}  // namespace vexa
