#pragma once

namespace vexa {

/// How a number is shown, with the stored codes. A value outside the enum acts as Engineering.
enum class DisplayType : int {
  FloatingPoint = 0,
  FixedPoint = 1,
  Scientific = 2,
  Currency = 3,
  Engineering = 4,
};

}  // namespace vexa
