#include "engine/Reduction.h"

#include <algorithm>

#include "engine/Operations.h"

namespace vexa {

Reduction::Reduction(TokenArray& tokens, int tokenCount, BaseType base, StepTaker& taker)
    : records(tokens), count(tokenCount), baseMode(base), steps(taker) {
  for (int i = 0; i < count; ++i) present |= OperatorBit(At(i).op);
}

void Reduction::Run() {
  for (int i = 0; i < count && !ended; ++i) {
    if (At(i).op != ')') continue;
    int j = i - 1;
    while (j >= 0 && At(j).op != '(') --j;
    if (j < 0) return Fail(kExpressionError);
    const bool isArgument = j > 0 && At(j - 1).op == 'F';
    ReduceRange(j, i);
    if (isArgument) ApplyFunctions(j - 1, i);
    At(j).op = 0;
    At(i).op = 0;
  }
  ReduceRange(0, count);
  ExtractResult();
}

void Reduction::ReduceRange(int lo, int hi) {
  if (baseMode == BaseType::Dec) {
    ReduceDecimalRange(lo, hi);
  } else {
    ReduceBaseRange(lo, hi);
  }
}

void Reduction::ExtractResult() {
  if (ended) return;
  const auto isLive = [](const Token& token) { return token.isOperand == 1; };
  const auto begin = records.begin();
  const auto end = begin + count;
  const auto first = std::find_if(begin, end, isLive);
  if (first == end || std::find_if(first + 1, end, isLive) != end) return Fail(kExpressionError);
  steps.Finish(static_cast<int>(first - begin));
}

void Reduction::Take(const ReductionStep& step) {
  if (!ended) ended = !steps.Take(step);
}

void Reduction::Fail(const EngineError& error) {
  if (!ended) steps.Fail(error);
  ended = true;
}

int Reduction::OperandBefore(int index) const {
  while (index >= 0 && At(index).isOperand != 1) --index;
  return index;
}

int Reduction::OperandAfter(int index) const {
  ++index;
  while (index < count && At(index).isOperand != 1) ++index;
  return index;
}

void Reduction::ApplyPass(const OperatorPass& pass, int lo, int hi) {
  if ((present & pass.operators) == 0) return;
  for (int k = lo; k < hi; ++k) {
    if (At(k).kind != kOperatorKind) continue;
    const Operation* const operation = pass.Find(At(k).op);
    if (operation) ApplyBinary(k, *operation);
  }
}

void Reduction::ApplyBinary(int index, const Operation& operation) {
  const int left = OperandBefore(index);
  if (left < 0) return Fail(kExpressionError);
  const int right = OperandAfter(index);
  Take({&operation, static_cast<std::uint8_t>(left), static_cast<std::uint8_t>(right)});
  At(right).isOperand = 0;
  At(index).op = 0;
}

void Reduction::ApplyUnary(int operand, const Operation& operation) {
  Take({&operation, static_cast<std::uint8_t>(operand), static_cast<std::uint8_t>(operand)});
}

bool Reduction::IsSign(int index) const {
  --index;
  while (index >= 0 && At(index).op == 0 && At(index).isOperand != 1) --index;
  return index < 0 || (At(index).isOperand != 1 && At(index).op != '!');
}

void Reduction::ApplySigns(int lo, int hi) {
  if (MayHave('-')) ApplyMinusSigns(lo, hi);
  if (MayHave('+')) ApplyPlusSigns(lo, hi);
}

// A binary sign ends its scan, so a sign behind it stays an operator (5-2*-3); meant.

void Reduction::ApplyMinusSigns(int lo, int hi) {
  for (int k = lo; k < hi; ++k) {
    if (At(k).op != '-') continue;
    if (!IsSign(k)) return;
    At(k).op = 0;
    const int operand = OperandAfter(k);
    if (operand < count) ApplyUnary(operand, kNegation);
  }
}

void Reduction::ApplyPlusSigns(int lo, int hi) {
  for (int k = lo; k < hi; ++k) {
    if (At(k).op != '+') continue;
    if (!IsSign(k)) return;
    At(k).op = 0;
  }
}

}  // namespace vexa
