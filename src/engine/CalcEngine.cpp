#include "engine/CalcEngine.h"

#include <algorithm>
#include <cmath>

#include "engine/AsciiCase.h"
#include "engine/Dialects.h"
#include "engine/SyntaxRules.h"

namespace vexa {
namespace {

/// Records that do not fit together.
constexpr ReductionStep kExpressionFailure{.run = RunFailure,
                                           .code = static_cast<int>(ErrorCode::Expression)};

}  // namespace

void CalcEngine::EvaluateExpression(std::wstring_view expression) {
  Clear();
  result = 0.0;
  if (expression.empty()) return ReportError(ErrorCode::NullExpression);
  const std::wstring lower = ToLowerAscii(expression);
  if (baseMode == BaseType::Dec) {
    TokenizeDecimal(lower);
    if (errorFlag != 1) CheckSyntax(SyntaxRules::Decimal, *this);
  } else {
    Tokenize(lower, ExpressionDialect(baseMode), *this);
    if (errorFlag != 1) CheckSyntax(SyntaxRules::Base, *this);
  }
  if (errorFlag == 1) return;
  Reduce();
  RunPlan();
}

void CalcEngine::LoadTokens(std::span<const Token> records) {
  const std::size_t count = std::min(records.size(), std::size_t{kMaxTokens + 1});
  std::copy_n(records.begin(), count, tokens.begin());
  ClearRecordsFrom(count);
  tokenCount = static_cast<int>(count);
}

void CalcEngine::EvaluateTokens() {
  errorFlag = 0;
  errorText.clear();
  result = 0.0;
  // The record behind the last one stands in for missing operands.
  At(tokenCount) = {};
  if (!plan.Fits(Records(), baseMode)) {
    CheckSyntax(SyntaxRules::Decimal, *this);
    if (errorFlag == 1) return;
    Reduce();
  }
  RunPlan();
}

std::span<const Token> CalcEngine::Records() const {
  return {tokens.data(), static_cast<std::size_t>(tokenCount)};
}

void CalcEngine::TokenizeDecimal(std::wstring_view expression) {
  Tokenize(expression, ExpressionDialect(BaseType::Dec), *this);
}

void CalcEngine::Reduce() {
  plan.Begin(Records(), baseMode);
  pendingFunctionClose = 0;
  for (int i = 0; i < tokenCount && !plan.Failed(); ++i) {
    if (At(i).op != ')') continue;
    int j = i - 1;
    while (j >= 0 && At(j).op != '(') --j;
    if (j < 0) return plan.Fail(kExpressionFailure);
    if (j > 0 && At(j - 1).op == 'F') pendingFunctionClose = i;
    ReduceRange(j, i);
    if (pendingFunctionClose != 0) {
      ApplyFunctions(j - 1, i);
      pendingFunctionClose = 0;
    }
    At(j).op = 0;
    At(i).op = 0;
  }
  ReduceRange(0, tokenCount);
  ExtractResult();
}

void CalcEngine::ReduceRange(int lo, int hi) {
  if (baseMode == BaseType::Dec) {
    ReduceDecimalRange(lo, hi);
  } else {
    ReduceBaseRange(lo, hi);
  }
}

void CalcEngine::ExtractResult() {
  const auto isLive = [](const Token& token) { return token.isOperand == 1; };
  const auto records = Records();
  const auto first = std::find_if(records.begin(), records.end(), isLive);
  if (std::count_if(first, records.end(), isLive) != 1) return plan.Fail(kExpressionFailure);
  plan.Finish(static_cast<int>(first - records.begin()));
}

void CalcEngine::RunPlan() {
  for (const ReductionStep& step : plan.Steps()) {
    step.run(*this, step);
    if (errorFlag == 1) return;
  }
  const double value = At(plan.ResultIndex()).value;
  if (!std::isfinite(value)) return ReportError(ErrorCode::OutOfRange);
  result = value;
}

int CalcEngine::OperandBefore(int index) const {
  while (index >= 0 && At(index).isOperand != 1) --index;
  return index;
}

int CalcEngine::OperandAfter(int index) const {
  ++index;
  while (index < tokenCount && At(index).isOperand != 1) ++index;
  return index;
}

void CalcEngine::ApplyPass(const OperatorPass& pass, int lo, int hi) {
  for (int k = lo; k < hi; ++k) {
    if (At(k).kind != kOperatorKind) continue;
    const BinaryOperation operation = pass[static_cast<std::size_t>(At(k).op) % pass.size()];
    if (operation) ApplyBinary(k, {.run = RunBinary, .operation = operation});
  }
}

void CalcEngine::ApplyBinary(int index, ReductionStep step) {
  const int left = OperandBefore(index);
  if (left < 0) return plan.Fail(kExpressionFailure);
  const int right = OperandAfter(index);
  step.left = static_cast<std::uint8_t>(left);
  step.right = static_cast<std::uint8_t>(right);
  plan.Add(step);
  At(right).isOperand = 0;
  At(index).op = 0;
}

bool CalcEngine::IsSign(int index) const {
  --index;
  while (index >= 0 && At(index).op == 0 && At(index).isOperand != 1) --index;
  return index < 0 || (At(index).isOperand != 1 && At(index).op != '!');
}

void CalcEngine::ApplySigns(int lo, int hi) {
  // A binary sign ends its scan, so a sign behind it stays an operator (5-2*-3); meant.
  for (int k = lo; k < hi; ++k) {
    if (At(k).op != '-') continue;
    if (!IsSign(k)) break;
    At(k).op = 0;
    const int operand = OperandAfter(k);
    if (operand < tokenCount) {
      plan.Add({.run = RunNegation, .left = static_cast<std::uint8_t>(operand)});
    }
  }
  for (int k = lo; k < hi; ++k) {
    if (At(k).op != '+') continue;
    if (!IsSign(k)) break;
    At(k).op = 0;
  }
}

}  // namespace vexa
