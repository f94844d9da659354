// The reduction of a range of records in decimal: functions without parentheses, signs, factorials,
// nCr and nPr, powers, products, sums.

#include "engine/CalcEngine.h"

namespace vexa {

void CalcEngine::ReduceDecimalRange(int lo, int hi) {
  for (int k = hi - 1; k >= lo; --k) {
    if (At(k).op != 'F') continue;
    ApplyFunctions(k, hi);
    At(k).op = 0;
    At(hi).op = 0;
  }
  ApplyPrefixesAndPowers(lo, hi);
  ApplyPass(kDecimalProducts, lo, hi);
  ApplyPass(kDecimalSums, lo, hi);
}

void CalcEngine::ApplyPrefixesAndPowers(int lo, int hi) {
  ApplySigns(lo, hi);
  ApplyFactorials(lo, hi);
  ApplyCombinatorics(lo, hi);
  ApplyPowers(lo, hi);
}

void CalcEngine::ApplyFactorials(int lo, int hi) {
  for (int k = lo; k < hi; ++k) {
    if (At(k).op != '!') continue;
    const int operand = OperandBefore(k);
    if (operand < 0) return plan.Fail({.run = RunMissingFactorialArgument});
    plan.Add({.run = RunFactorial, .left = static_cast<std::uint8_t>(operand)});
    At(k).op = 0;
  }
}

void CalcEngine::ApplyCombinatorics(int lo, int hi) {
  for (int k = lo; k < hi; ++k) {
    if (At(k).op == 'c') ApplyBinary(k, {.run = RunCombination});
    if (At(k).op == 'p') ApplyBinary(k, {.run = RunPermutation});
  }
}

void CalcEngine::ApplyPowers(int lo, int hi) {
  int last = hi - 1;
  while (last >= lo && At(last).op != '^') --last;
  for (int k = lo; k <= last; ++k) {
    if (At(k).op == '^') ApplyBinary(k, {.run = k == last ? RunLastPower : RunPower});
  }
}

void CalcEngine::ApplyFunctions(int lo, int hi) {
  ApplyPrefixesAndPowers(lo, hi);
  for (int k = lo; k <= hi; ++k) {
    const Token function = At(k);
    if (function.kind != kFunctionKind || function.op == 0) continue;
    const int argument = OperandAfter(k);
    if (argument == tokenCount) {
      return plan.Fail({.run = RunMissingArgument, .code = function.funcCode});
    }
    plan.Add({.run = RunFunction,
              .left = static_cast<std::uint8_t>(argument),
              .code = function.funcCode});
    At(k) = {};
  }
}

}  // namespace vexa
