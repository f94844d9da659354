#pragma once

#include <array>
#include <cstdint>

#include "engine/Operation.h"

namespace vexa {

/// Some operator characters, a bit each; two of them may share one.
using OperatorSet = std::uint64_t;

constexpr OperatorSet OperatorBit(signed char op) {
  return OperatorSet{1} << (op & 63);
}

/// The operations of one pass over an expression.
struct OperatorPass {
  /// By operator character; null: not of this pass.
  std::array<const Operation*, 128> operations{};
  /// The operators of the pass.
  OperatorSet operators = 0;

  const Operation* Find(signed char op) const { return operations[op & 127]; }
};

/// "*" "/" "%" "<" ">"
extern const OperatorPass kDecimalProducts;
/// "+" "-"
extern const OperatorPass kDecimalSums;
/// "*" "/" "<" ">"
extern const OperatorPass kBaseProducts;
/// "+" "-" and the bitwise "a" "o" "x" "y"
extern const OperatorPass kBaseSums;

}  // namespace vexa
