#pragma once

#include <cstdint>

#include "engine/BinaryOperators.h"
#include "engine/EngineErrors.h"

namespace vexa {

class CalcEngine;
struct ReductionStep;

/// Does one step on the engine's records, or reports an error. Operands are given by their index.
using StepFunction = void (*)(CalcEngine& engine, const ReductionStep& step);

/// One step of reducing an expression's records to a value.
struct ReductionStep {
  StepFunction run = nullptr;
  std::uint8_t left = 0;                ///< the operand that receives the result
  std::uint8_t right = 0;               ///< the second operand of a binary step
  std::int32_t code = 0;                ///< a function's or an error's code
  BinaryOperation operation = nullptr;  ///< of RunBinary
};

/// left = left operation right; both must be finite.
void RunBinary(CalcEngine& engine, const ReductionStep& step);
/// left = left to the power of right.
void RunPower(CalcEngine& engine, const ReductionStep& step);
/// The last power of a pass: only its operands are tested for being finite; an earlier overflow
/// shows in a later step.
void RunLastPower(CalcEngine& engine, const ReductionStep& step);
/// left = left!
void RunFactorial(CalcEngine& engine, const ReductionStep& step);
/// left = combinations, or permutations, of right out of left.
void RunCombination(CalcEngine& engine, const ReductionStep& step);
void RunPermutation(CalcEngine& engine, const ReductionStep& step);
/// left = the function with `code` of left.
void RunFunction(CalcEngine& engine, const ReductionStep& step);
/// left = -left
void RunNegation(CalcEngine& engine, const ReductionStep& step);
/// left = the 32-bit complement of left.
void RunComplement(CalcEngine& engine, const ReductionStep& step);
/// Reports the error with `code`: records that do not fit together.
void RunFailure(CalcEngine& engine, const ReductionStep& step);
/// Reports that the function with `code` has no argument.
void RunMissingArgument(CalcEngine& engine, const ReductionStep& step);
/// Reports that "!" has no argument.
void RunMissingFactorialArgument(CalcEngine& engine, const ReductionStep& step);

}  // namespace vexa
