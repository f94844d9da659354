#pragma once

#include <string>

namespace vexa {

/// The finite `value` with `precision` decimals (0 to 100) and an exponent that is a multiple of 3:
/// 12.34500E+003. Zero is written with a small "e".
std::wstring EngineeringText(double value, int precision);

}  // namespace vexa
