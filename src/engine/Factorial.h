#pragma once

namespace vexa {

/// n!, multiplied downward from `n` in doubles (from 25! on the order shows in the last bit).
/// -1.0 when `n` is no whole number within 32 bits or is negative; infinite from 171! on.
double Factorial(double n);

}  // namespace vexa
