// The reduction of a range of records in decimal: functions without parentheses, signs, factorials,
// nCr and nPr, powers, products, sums.

#include <cmath>
#include <cstdlib>

#include "engine/BinaryOperators.h"
#include "engine/CalcEngine.h"
#include "engine/Factorial.h"
#include "engine/Functions.h"
#include "engine/ToInt32.h"

namespace vexa {
namespace {

/// A factorial's operand lies below this.
constexpr double kFactorialLimit = 150.0;

/// nCr or nPr: what its messages call it, long and short, and its formula.
struct Combinatoric {
  std::wstring_view name;
  std::wstring_view shortName;
  double (*count)(double n, double r);
};

double Combinations(double n, double r) {
  return Factorial(n) / (Factorial(n - r) * Factorial(r));
}
double Permutations(double n, double r) { return Factorial(n) / Factorial(n - r); }

constexpr Combinatoric kCombination{L"Combination", L"Combi..", Combinations};
constexpr Combinatoric kPermutation{L"Permutation", L"Permu..", Permutations};

}  // namespace

void CalcEngine::ReduceDecimalRange(int lo, int hi) {
  for (int k = hi - 1; k >= lo; --k) {
    if (At(k).op != 'F') continue;
    ApplyFunctions(k, hi);
    if (errorFlag == 1) return;
    At(k).op = 0;
    At(hi).op = 0;
  }
  ApplyPrefixesAndPowers(lo, hi);
  if (errorFlag != 1) ApplyPass(kDecimalProducts, lo, hi);
  if (errorFlag != 1) ApplyPass(kDecimalSums, lo, hi);
}

void CalcEngine::ApplyPrefixesAndPowers(int lo, int hi) {
  ApplySigns(lo, hi);
  ApplyFactorials(lo, hi);
  if (errorFlag != 1) ApplyCombinatorics(lo, hi);
  if (errorFlag != 1) ApplyPowers(lo, hi);
}

void CalcEngine::ApplyFactorials(int lo, int hi) {
  for (int k = lo; k < hi; ++k) {
    if (At(k).op != '!') continue;
    const int index = OperandBefore(k);
    if (index < 0) return ReportError(ErrorCode::NeedsArgument, L"!");
    double& operand = At(index).value;
    if (!(operand < kFactorialLimit)) return ReportError(ErrorCode::OutOfRange);
    const double factorial = Factorial(operand);
    if (factorial == -1.0) return ReportError(ErrorCode::NonInteger, L"!");
    operand = factorial;
    At(k).op = 0;
  }
}

void CalcEngine::ApplyCombinatorics(int lo, int hi) {
  for (int k = lo; k < hi; ++k) {
    if (At(k).op != 'c' && At(k).op != 'p') continue;
    const Combinatoric& operation = At(k).op == 'c' ? kCombination : kPermutation;
    const int nIndex = OperandBefore(k);
    if (nIndex < 0) return ReportError(ErrorCode::Expression);
    Token& right = At(OperandAfter(k));
    const double n = At(nIndex).value;
    const double r = right.value;
    if (!(r <= n && n >= 0.0 && r >= 0.0)) {
      return ReportError(ErrorCode::LimitExceeded, operation.name);
    }
    if (!IsInt32(n) || !IsInt32(r)) return ReportError(ErrorCode::NonInteger, operation.shortName);
    At(nIndex).value = operation.count(n, r);
    right.isOperand = 0;
    At(k).op = 0;
  }
}

void CalcEngine::ApplyPowers(int lo, int hi) {
  double left = 0.0;
  double right = 0.0;
  for (int k = lo; k < hi; ++k) {
    if (At(k).op != '^') continue;
    const int baseIndex = OperandBefore(k);
    if (baseIndex < 0) return ReportError(ErrorCode::Expression);
    Token& exponent = At(OperandAfter(k));
    left = At(baseIndex).value;
    right = exponent.value;
    At(baseIndex).value = std::pow(left, right);
    exponent.isOperand = 0;
    At(k).op = 0;
  }
  // Only the last power's operands are tested; an earlier overflow shows in a later stage.
  if (!std::isfinite(left) || !std::isfinite(right)) ReportError(ErrorCode::OutOfRange);
}

void CalcEngine::ApplyFunctions(int lo, int hi) {
  ApplyPrefixesAndPowers(lo, hi);
  for (int k = lo; k <= hi && errorFlag != 1; ++k) {
    Token& function = At(k);
    if (function.kind != kFunctionKind || function.op == 0) continue;
    const std::wstring_view name = FunctionName(function.funcCode);
    const int index = OperandAfter(k);
    if (index >= tokenCount) return ReportError(ErrorCode::NeedsArgument, name);
    double& argument = At(index).value;
    if (!std::isfinite(argument)) return ReportError(ErrorCode::OutOfRange);
    const FunctionOutcome outcome = EvaluateFunction(function.funcCode, argument, angleMode);
    if (outcome.refused) return ReportError(ErrorCode::LimitExceeded, name);
    argument = outcome.value;
    function = {};
  }
}

}  // namespace vexa
