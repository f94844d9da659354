// The reduction of a range of records in an integer base: NOT, signs, products, sums and bitwise
// operators.

#include "engine/Operations.h"
#include "engine/Reduction.h"

namespace vexa {

void Reduction::ReduceBaseRange(int lo, int hi) {
  ApplyComplements(lo, hi);
  ApplySigns(lo, hi);
  ApplyPass(kBaseProducts, lo, hi);
  ApplyPass(kBaseSums, lo, hi);
}

void Reduction::ApplyComplements(int lo, int hi) {
  for (int k = hi - 1; k >= lo; --k) {
    if (At(k).op != 'n') continue;
    const int operand = OperandAfter(k);
    if (operand < count) ApplyUnary(operand, kComplement);
    At(k).op = 0;
  }
}

}  // namespace vexa
