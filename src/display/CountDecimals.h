#pragma once

namespace vexa {

/// Number of decimals, 0 to 13, that shows the finite `value` without the noise of its last binary
/// digits: 0.1 + 0.2 has 1, a third has 12.
int CountDecimals(double value);

/// `value` rounded to `n` - 1 decimals, half away from zero.
double RoundToDecimals(double value, int n);

}  // namespace vexa
