// The reduction of a range of records in decimal: functions without parentheses, signs, factorials,
// nCr and nPr, powers, products, sums.

#include "engine/Functions.h"
#include "engine/Operations.h"
#include "engine/Reduction.h"

namespace vexa {
namespace {

constexpr EngineError kMissingFactorialArgument{ErrorCode::NeedsArgument, L"!"};

}  // namespace

void Reduction::ReduceDecimalRange(int lo, int hi) {
  if (MayHave('F')) ApplyBareFunctions(lo, hi);
  ApplyPrefixesAndPowers(lo, hi);
  ApplyPass(kDecimalProducts, lo, hi);
  ApplyPass(kDecimalSums, lo, hi);
}

void Reduction::ApplyBareFunctions(int lo, int hi) {
  for (int k = hi - 1; k >= lo; --k) {
    if (At(k).op != 'F') continue;
    ApplyFunctions(k, hi);
    At(k).op = 0;
    At(hi).op = 0;
  }
}

void Reduction::ApplyPrefixesAndPowers(int lo, int hi) {
  ApplySigns(lo, hi);
  if (MayHave('!')) ApplyFactorials(lo, hi);
  if (MayHave('c') || MayHave('p')) ApplyCombinatorics(lo, hi);
  if (MayHave('^')) ApplyPowers(lo, hi);
}

void Reduction::ApplyFactorials(int lo, int hi) {
  for (int k = lo; k < hi; ++k) {
    if (At(k).op != '!') continue;
    const int operand = OperandBefore(k);
    if (operand < 0) return Fail(kMissingFactorialArgument);
    ApplyUnary(operand, kFactorial);
    At(k).op = 0;
  }
}

void Reduction::ApplyCombinatorics(int lo, int hi) {
  for (int k = lo; k < hi; ++k) {
    if (At(k).op == 'c') ApplyBinary(k, kCombination);
    if (At(k).op == 'p') ApplyBinary(k, kPermutation);
  }
}

void Reduction::ApplyPowers(int lo, int hi) {
  int last = hi - 1;
  while (last >= lo && At(last).op != '^') --last;
  for (int k = lo; k <= last; ++k) {
    if (At(k).op == '^') ApplyBinary(k, k == last ? kLastPower : kPower);
  }
}

void Reduction::ApplyFunctions(int lo, int hi) {
  ApplyPrefixesAndPowers(lo, hi);
  for (int k = lo; k <= hi; ++k) {
    if (At(k).kind != kFunctionKind || At(k).op == 0) continue;
    const Keyword& function = FunctionOf(At(k).funcCode);
    const int argument = OperandAfter(k);
    if (argument == count) return Fail(function.missingArgument);
    ApplyUnary(argument, function.operation);
    At(k) = {};
  }
}

}  // namespace vexa
