#pragma once

#include <array>
#include <cstddef>

namespace vexa {

/// The result of a binary operation, or the name of the operation whose limit the operands exceed
/// (a pointer, so that the outcome fits into registers).
struct BinaryOutcome {
  double value = 0.0;
  const wchar_t* exceeded = nullptr;
};

using BinaryOperation = BinaryOutcome (*)(double left, double right);

/// The operations of one pass over an expression, by operator character; null: not of this pass.
using OperatorPass = std::array<BinaryOperation, 128>;

/// "*" "/" "%" "<" ">"
extern const OperatorPass kDecimalProducts;
/// "+" "-"
extern const OperatorPass kDecimalSums;
/// "*" "/" "<" ">"
extern const OperatorPass kBaseProducts;
/// "+" "-" and the bitwise "a" "o" "x" "y"
extern const OperatorPass kBaseSums;

}  // namespace vexa
