#include "engine/ReductionStep.h"

#include <cmath>

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
double Permutations(double n, double r) {
  return Factorial(n) / Factorial(n - r);
}

constexpr Combinatoric kCombination{L"Combination", L"Combi..", Combinations};
constexpr Combinatoric kPermutation{L"Permutation", L"Permu..", Permutations};

double& Left(CalcEngine& engine, const ReductionStep& step) {
  return engine.tokens[step.left].value;
}
double Right(const CalcEngine& engine, const ReductionStep& step) {
  return engine.tokens[step.right].value;
}

void RunCombinatoric(CalcEngine& engine, const ReductionStep& step, const Combinatoric& what) {
  double& n = Left(engine, step);
  const double r = Right(engine, step);
  if (!(r <= n && n >= 0.0 && r >= 0.0)) {
    return engine.ReportError(ErrorCode::LimitExceeded, what.name);
  }
  if (!IsInt32(n) || !IsInt32(r)) {
    return engine.ReportError(ErrorCode::NonInteger, what.shortName);
  }
  n = what.count(n, r);
}

}  // namespace

void RunBinary(CalcEngine& engine, const ReductionStep& step) {
  double& left = Left(engine, step);
  const double right = Right(engine, step);
  if (!std::isfinite(left) || !std::isfinite(right)) {
    return engine.ReportError(ErrorCode::OutOfRange);
  }
  const BinaryOutcome outcome = step.operation(left, right);
  if (outcome.exceeded) return engine.ReportError(ErrorCode::LimitExceeded, outcome.exceeded);
  left = outcome.value;
}

void RunPower(CalcEngine& engine, const ReductionStep& step) {
  double& base = Left(engine, step);
  base = std::pow(base, Right(engine, step));
}

void RunLastPower(CalcEngine& engine, const ReductionStep& step) {
  if (!std::isfinite(Left(engine, step)) || !std::isfinite(Right(engine, step))) {
    return engine.ReportError(ErrorCode::OutOfRange);
  }
  RunPower(engine, step);
}

void RunFactorial(CalcEngine& engine, const ReductionStep& step) {
  double& operand = Left(engine, step);
  if (!(operand < kFactorialLimit)) return engine.ReportError(ErrorCode::OutOfRange);
  const double factorial = Factorial(operand);
  if (factorial == -1.0) return engine.ReportError(ErrorCode::NonInteger, L"!");
  operand = factorial;
}

void RunCombination(CalcEngine& engine, const ReductionStep& step) {
  RunCombinatoric(engine, step, kCombination);
}

void RunPermutation(CalcEngine& engine, const ReductionStep& step) {
  RunCombinatoric(engine, step, kPermutation);
}

void RunFunction(CalcEngine& engine, const ReductionStep& step) {
  double& argument = Left(engine, step);
  if (!std::isfinite(argument)) return engine.ReportError(ErrorCode::OutOfRange);
  const FunctionOutcome outcome = EvaluateFunction(step.code, argument, engine.angleMode);
  if (outcome.refused) {
    return engine.ReportError(ErrorCode::LimitExceeded, FunctionName(step.code));
  }
  argument = outcome.value;
}

void RunNegation(CalcEngine& engine, const ReductionStep& step) {
  Left(engine, step) *= -1.0;
}

void RunComplement(CalcEngine& engine, const ReductionStep& step) {
  double& operand = Left(engine, step);
  operand = static_cast<double>(~ToInt32(operand));
}

void RunFailure(CalcEngine& engine, const ReductionStep& step) {
  engine.ReportError(static_cast<ErrorCode>(step.code));
}

void RunMissingArgument(CalcEngine& engine, const ReductionStep& step) {
  engine.ReportError(ErrorCode::NeedsArgument, FunctionName(step.code));
}

void RunMissingFactorialArgument(CalcEngine& engine, const ReductionStep&) {
  engine.ReportError(ErrorCode::NeedsArgument, L"!");
}

}  // namespace vexa
