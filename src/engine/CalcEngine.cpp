#include "engine/CalcEngine.h"

#include <algorithm>
#include <cmath>

#include "engine/AsciiCase.h"
#include "engine/Dialects.h"
#include "engine/Reduction.h"
#include "engine/SyntaxRules.h"

namespace vexa {
namespace {

/// Does each step at once, on the values of the engine's records.
class RecordSteps : public StepTaker {
 public:
  explicit RecordSteps(CalcEngine& calcEngine) : engine(calcEngine) {}

  bool Take(const ReductionStep& step) override {
    double& left = engine.tokens[step.left].value;
    const double right = engine.tokens[step.right].value;
    const EngineError* const error = step.operation->Run(left, right, engine.angleMode);
    if (error) engine.ReportError(*error);
    return !error;
  }
  void Fail(const EngineError& error) override { engine.ReportError(error); }
  void Finish(int index) override {
    const double value = engine.tokens[static_cast<std::size_t>(index)].value;
    if (!std::isfinite(value)) return engine.ReportError(kOutOfRange);
    engine.result = value;
  }

 private:
  CalcEngine& engine;
};

}  // namespace

void CalcEngine::EvaluateExpression(std::wstring_view expression) {
  Clear();
  result = 0.0;
  if (expression.empty()) return ReportError(ErrorCode::NullExpression);
  ToLowerAscii(expression, lower);
  if (baseMode == BaseType::Dec) {
    TokenizeDecimal(lower);
    if (errorFlag != 1) CheckSyntax(SyntaxRules::Decimal, *this);
  } else {
    Tokenize(lower, ExpressionDialect(baseMode), *this);
    if (errorFlag != 1) CheckSyntax(SyntaxRules::Base, *this);
  }
  if (errorFlag != 1) Reduce();
}

void CalcEngine::LoadTokens(std::span<const Token> records) {
  ClearRecords();
  const std::size_t count = std::min(records.size(), std::size_t{kMaxTokens + 1});
  std::copy_n(records.begin(), count, tokens.begin());
  tokenCount = static_cast<int>(count);
}

void CalcEngine::EvaluateTokens() {
  errorFlag = 0;
  errorText.clear();
  result = 0.0;
  CheckSyntax(SyntaxRules::Decimal, *this);
  if (errorFlag != 1) Reduce();
}

void CalcEngine::TokenizeDecimal(std::wstring_view expression) {
  Tokenize(expression, ExpressionDialect(BaseType::Dec), *this);
}

void CalcEngine::Reduce() {
  // The record behind the last one stands in for missing operands. A caller may have written it.
  tokens[static_cast<std::size_t>(tokenCount)] = {};
  RecordSteps steps(*this);
  Reduction(tokens, tokenCount, baseMode, steps).Run();
}

}  // namespace vexa
