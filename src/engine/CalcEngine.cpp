#include "engine/CalcEngine.h"

#include <algorithm>
#include <cmath>

#include "engine/AsciiCase.h"
#include "engine/Dialects.h"
#include "engine/SyntaxRules.h"

namespace vexa {

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
  if (errorFlag != 1) Reduce();
  if (errorFlag != 1) ExtractResult();
}

void CalcEngine::LoadTokens(std::span<const Token> records) {
  const std::size_t count = std::min(records.size(), std::size_t{kMaxTokens + 1});
  std::copy_n(records.begin(), count, tokens.begin());
  std::fill(tokens.begin() + static_cast<std::ptrdiff_t>(count), tokens.end(), Token{});
  tokenCount = static_cast<int>(count);
}

void CalcEngine::EvaluateTokens() {
  errorFlag = 0;
  errorText.clear();
  result = 0.0;
  CheckSyntax(SyntaxRules::Decimal, *this);
  if (errorFlag != 1) Reduce();
  if (errorFlag != 1) ExtractResult();
}

void CalcEngine::TokenizeDecimal(std::wstring_view expression) {
  Tokenize(expression, ExpressionDialect(BaseType::Dec), *this);
}

void CalcEngine::Reduce() {
  pendingFunctionClose = 0;
  for (int i = 0; i < tokenCount; ++i) {
    if (At(i).op != ')') continue;
    int j = i - 1;
    while (j >= 0 && At(j).op != '(') --j;
    if (j < 0) return ReportError(ErrorCode::Expression);
    if (j > 0 && At(j - 1).op == 'F') pendingFunctionClose = i;
    ReduceRange(j, i);
    if (errorFlag != 1 && pendingFunctionClose != 0) {
      ApplyFunctions(j - 1, i);
      pendingFunctionClose = 0;
    }
    if (errorFlag == 1) return;
    At(j).op = 0;
    At(i).op = 0;
  }
  ReduceRange(0, tokenCount);
}

void CalcEngine::ReduceRange(int lo, int hi) {
  if (baseMode == BaseType::Dec) {
    ReduceDecimalRange(lo, hi);
  } else {
    ReduceBaseRange(lo, hi);
  }
}

void CalcEngine::ExtractResult() {
  const Token* only = nullptr;
  int live = 0;
  for (int i = 0; i < tokenCount; ++i) {
    if (At(i).isOperand != 1) continue;
    only = &At(i);
    ++live;
  }
  if (live != 1) return ReportError(ErrorCode::Expression);
  if (!std::isfinite(only->value)) return ReportError(ErrorCode::OutOfRange);
  result = only->value;
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
    if (!operation) continue;
    const int leftIndex = OperandBefore(k);
    if (leftIndex < 0) return ReportError(ErrorCode::Expression);
    Token& left = At(leftIndex);
    Token& right = At(OperandAfter(k));
    if (!std::isfinite(left.value) || !std::isfinite(right.value)) {
      return ReportError(ErrorCode::OutOfRange);
    }
    const BinaryOutcome outcome = operation(left.value, right.value);
    if (!outcome.exceeded.empty()) {
      return ReportError(ErrorCode::LimitExceeded, outcome.exceeded);
    }
    left.value = outcome.value;
    right.isOperand = 0;
    At(k).op = 0;
  }
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
    if (operand < tokenCount) At(operand).value *= -1.0;
  }
  for (int k = lo; k < hi; ++k) {
    if (At(k).op != '+') continue;
    if (!IsSign(k)) break;
    At(k).op = 0;
  }
}

}  // namespace vexa
