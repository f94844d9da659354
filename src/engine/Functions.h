#pragma once

#include <cstdint>
#include <string_view>

#include "engine/CalcModes.h"

namespace vexa {

/// A function's value, or that its argument lies outside its domain.
struct FunctionOutcome {
  double value = 0.0;
  bool refused = false;
};

/// The value of the function with this FunctionCode at the finite `x`. Trigonometric functions are
/// exactly 0 at their zeros (the cosine at its positive ones).
FunctionOutcome EvaluateFunction(std::int32_t code, double x, AngleType angle);

/// The name of the function with this code, as it is written in an expression.
std::wstring_view FunctionName(std::int32_t code);

}  // namespace vexa
