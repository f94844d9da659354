#include "engine/Operations.h"

#include <cmath>
#include <string_view>

#include "engine/Factorial.h"
#include "engine/ToInt32.h"

namespace vexa {
namespace {

/// A factorial's operand lies below this.
constexpr double kFactorialLimit = 150.0;

/// The number of a factorial's refusal.
int FactorialRefusal(double n) {
  if (!(n < kFactorialLimit)) return 1;
  return IsInt32(n) && n >= 0.0 ? 0 : 2;
}

/// The number of the refusal of r things out of n.
int ChoiceRefusal(double n, double r) {
  if (!(r <= n && n >= 0.0 && r >= 0.0)) return 1;
  return IsInt32(n) && IsInt32(r) ? 0 : 2;
}

/// nCr or nPr: what its sentences call it, long and short, and how many choices there are.
template <typename Count>
constexpr Operation Choice(std::wstring_view name, std::wstring_view shortName, Count count) {
  return MakeOperation(Operands::Any,
                       {{{ErrorCode::LimitExceeded, name}, {ErrorCode::NonInteger, shortName}}},
                       count, [](double n, double r) { return ChoiceRefusal(n, r); });
}

constexpr auto kPow = [](double left, double right) { return std::pow(left, right); };

}  // namespace

constexpr Operation kNegation = MakeOperation(Operands::Any, {}, [](double x) { return x * -1.0; });

constexpr Operation kComplement =
    MakeOperation(Operands::Any, {}, [](double x) { return static_cast<double>(~ToInt32(x)); });

constexpr Operation kFactorial = MakeOperation(
    Operands::Any, {{{ErrorCode::OutOfRange}, {ErrorCode::NonInteger, L"!"}}},
    [](double n) { return Factorial(n); }, [](double n) { return FactorialRefusal(n); });

constexpr Operation kCombination = Choice(L"Combination", L"Combi..", [](double n, double r) {
  return Factorial(n) / (Factorial(n - r) * Factorial(r));
});

constexpr Operation kPermutation = Choice(
    L"Permutation", L"Permu..", [](double n, double r) { return Factorial(n) / Factorial(n - r); });

constexpr Operation kPower = MakeOperation(Operands::Any, {}, kPow);
constexpr Operation kLastPower = MakeOperation(Operands::Finite, {}, kPow);

}  // namespace vexa
