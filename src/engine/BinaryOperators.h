#pragma once

#include <array>

#include "engine/Operation.h"

namespace vexa {

/// The operations of one pass over an expression, by operator character; null: not of this pass.
using OperatorPass = std::array<const Operation*, 128>;

/// "*" "/" "%" "<" ">"
extern const OperatorPass kDecimalProducts;
/// "+" "-"
extern const OperatorPass kDecimalSums;
/// "*" "/" "<" ">"
extern const OperatorPass kBaseProducts;
/// "+" "-" and the bitwise "a" "o" "x" "y"
extern const OperatorPass kBaseSums;

}  // namespace vexa
