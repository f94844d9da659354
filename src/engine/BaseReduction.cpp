// The reduction of a range of records in an integer base: NOT, signs, products, sums and bitwise
// operators.

#include "engine/BinaryOperators.h"
#include "engine/CalcEngine.h"
#include "engine/ToInt32.h"

namespace vexa {

void CalcEngine::ReduceBaseRange(int lo, int hi) {
  ApplyComplements(lo, hi);
  ApplySigns(lo, hi);
  ApplyPass(kBaseProducts, lo, hi);
  if (errorFlag != 1) ApplyPass(kBaseSums, lo, hi);
}

void CalcEngine::ApplyComplements(int lo, int hi) {
  for (int k = hi - 1; k >= lo; --k) {
    if (At(k).op != 'n') continue;
    const int operand = OperandAfter(k);
    if (operand < tokenCount) {
      At(operand).value = static_cast<double>(~ToInt32(At(operand).value));
    }
    At(k).op = 0;
  }
}

}  // namespace vexa
