// The reduction of a range of records in an integer base: NOT, signs, products, sums and bitwise
// operators.

#include "engine/CalcEngine.h"

namespace vexa {

void CalcEngine::ReduceBaseRange(int lo, int hi) {
  ApplyComplements(lo, hi);
  ApplySigns(lo, hi);
  ApplyPass(kBaseProducts, lo, hi);
  ApplyPass(kBaseSums, lo, hi);
}

void CalcEngine::ApplyComplements(int lo, int hi) {
  for (int k = hi - 1; k >= lo; --k) {
    if (At(k).op != 'n') continue;
    const int operand = OperandAfter(k);
    if (operand < tokenCount) {
      plan.Add({.run = RunComplement, .left = static_cast<std::uint8_t>(operand)});
    }
    At(k).op = 0;
  }
}

}  // namespace vexa
