#pragma once

#include "engine/Operation.h"

namespace vexa {

/// Changes the sign.
extern const Operation kNegation;
/// The 32-bit complement.
extern const Operation kComplement;
/// n!
extern const Operation kFactorial;
/// The number of combinations, and of permutations, of `right` things out of `left`.
extern const Operation kCombination;
extern const Operation kPermutation;
/// `left` to the power of `right`.
extern const Operation kPower;
/// The last power of a pass: only its operands are tested for being finite; an earlier overflow
/// shows in a later step.
extern const Operation kLastPower;

}  // namespace vexa
